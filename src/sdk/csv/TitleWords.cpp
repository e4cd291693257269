#include "csv/TitleWords.h"

#include "base/Unicode.h"

namespace orva
{

namespace
{

char16_t lowered(char16_t c)
{
    const bool upper = (c >= u'A' && c <= u'Z') || (c >= 0x00C0 && c <= 0x00DE && c != 0x00D7) ||
                       (c >= 0x0391 && c <= 0x03A9) || (c >= 0x0410 && c <= 0x042F);
    return static_cast<char16_t>(upper ? c + 0x20 : c);
}

bool counts(char16_t c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') ||
           (c >= 0x00C0 && c != 0x00D7 && c != 0x00F7 && c < 0x2000) || c >= 0x3040;
}

// clang-format off
const KnownTitles known = {
    // fullName
    {"fullname", "displayname", "formattedname", "anzeigename", "vollständigername", "vollername", "nomcomplet",
     "nomàafficher", "nombrecompleto", "nombreparamostrar", "nomecompleto", "nomevisualizzato", "nomedavisualizzare",
     "отображаемоеимя", "полноеимя", "显示名称", "顯示名稱", "全名", "الاسمالكامل", "اسمالعرض", "contactname", "contact",
     "kontakt"},
    // filedName
    {"fileas", "fileunder", "speichernunter"},
    // plainName
    {"name", "nom", "nombre", "nome", "naam", "имя", "姓名", "名称", "名稱", "联系人", "聯絡人", "الاسم", "اسم"},
    // firstName
    {"firstname", "givenname", "vorname", "prénom", "nombredepila", "primernombre", "nomebattesimo", "имя", "nombre",
     "nome", "名字", "名", "الاسمالأول"},
    // middleName
    {"middlename", "additionalname", "weiterevornamen", "zweitervorname", "deuxièmeprénom", "segundonombre",
     "secondonome", "中间名", "中間名", "الاسمالأوسط"},
    // lastName
    {"lastname", "familyname", "surname", "nachname", "familienname", "nomdefamille", "apellidos", "apellido",
     "cognome", "фамилия", "姓氏", "姓", "اسمالعائلة", "الاسمالأخير"},
    // company
    {"company", "organization", "organisation", "organizationname", "organization1name", "companyname", "org", "firma",
     "société", "entreprise", "empresa", "organización", "compañía", "azienda", "società", "организация", "公司",
     "单位", "单位名称", "الشركة", "شركة", "المؤسسة"},
    // mobile
    {"mobile", "mobilephone", "mobilenumber", "mobilephonenumber", "cellphone", "cellularnumber", "cell", "cellular",
     "mobiltelefon", "mobiltelnr", "mobilnummer", "mobil", "handy", "handynummer", "telmobile", "télmobile",
     "mobilephone2", "mobiltelefon2", "téléphonemobile", "téléphoneportable", "portable", "teléfonomóvil", "móvil", "númerodemóvil", "celular",
     "cellulare", "telefonocellulare", "numerodicellulare", "мобильныйтелефон", "мобильный", "移动电话", "移动电话号码",
     "手机", "手机号", "手机号码", "行動電話", "手機", "الهاتفالمحمول", "الهاتفالجوال", "الجوال", "جوال", "محمول",
     "iphone"},
    // office
    {"officephone", "workphone", "businessphone", "businessphone2", "telefongeschäftlich", "telefongeschäftlich2",
     "teldienstlich", "telefondienstlich", "telefonarbeit", "téléphonebureau", "téléphonebureau2", "telprofessionnel",
     "télprofessionnel", "teléfonodeltrabajo", "teléfonotrabajo", "telefonoufficio", "рабочийтелефон", "商务电话",
     "单位电话", "办公电话", "工作电话", "商務電話", "公司電話", "هاتفالعمل", "companymainphone", "telefonfirma"},
    // officeLabel
    {"office", "work", "business", "main", "workmain", "geschäftlich", "arbeit", "bureau", "travail", "professionnel",
     "trabajo", "lavoro", "ufficio", "рабочий", "工作", "العمل", "عمل"},
    // home
    {"homephone", "homephone2", "telefonprivat", "telefonprivat2", "telprivat", "téléphonedomicile",
     "téléphonedomicile2", "teldomicile", "téldomicile", "teléfonoparticular", "teléfonocasa", "telefonoabitazione",
     "telefonocasa", "домашнийтелефон", "住宅电话", "家庭电话", "住家電話", "هاتفالمنزل"},
    // homeLabel
    {"home", "privat", "domicile", "casa", "particular", "abitazione", "домашний", "住宅", "家庭", "家", "المنزل", "منزل"},
    // phone
    {"primaryphone", "number", "phone", "phonenumber", "telephone", "telephonenumber", "telefon", "telefonnummer",
     "rufnummer", "nummer", "tel", "téléphone", "teléfono", "telefono", "телефон", "otherphone", "haupttelefon", "weiterestelefon",
     "autrestéléphones", "autretéléphone", "otroteléfono", "altrotelefono", "carphone", "autotelefon", "电话", "电话号码",
     "號碼", "电话1", "電話", "電話號碼", "其他电话", "الهاتف", "هاتف", "رقمالهاتف", "الرقم"},
    // fax
    {"fax", "faxnumber", "homefax", "workfax", "businessfax", "otherfax", "homefaxnumber", "workfaxnumber",
     "faxgeschäftlich", "faxprivat", "weiteresfax", "faxnummer", "télécopie", "télécopiebureau", "télécopiedomicile", "faxdeltrabajo",
     "faxparticular", "faxufficio", "faxabitazione", "факс", "传真", "商务传真", "住宅传真", "傳真", "فاكس", "pager",
     "pagernumber", "telex"},
    // email
    {"email", "emailaddress", "primaryemail", "email1value", "email1", "emailadresse", "primäreemailadresse",
     "adressedemessagerie", "adresseélectronique", "adresseélectroniqueprincipale", "courriel",
     "direccióndecorreoelectrónico", "correoelectrónico", "correoelectrónicoprincipal", "correo", "indirizzoemail",
     "indirizzodipostaelettronica", "postaelettronica", "emailprimaria", "mail", "адресэлпочты", "электроннаяпочта",
     "电子邮件", "电子邮件地址", "邮箱", "主要电子邮件", "電子郵件", "電子郵件地址", "البريدالإلكتروني", "عنوانالبريدالإلكتروني",
     "email2", "emailaddress2", "secondaryemail", "emailadresse2", "adressedemessagerie2", "zweiteemailadresse",
     "direccióndecorreoelectrónico2", "indirizzoemail2", "电子邮件地址2", "email3", "emailaddress3", "emailadresse3"},
    // note
    {"remark", "notes", "note", "notizen", "notiz", "comments", "comment", "bemerkung", "bemerkungen", "kommentar",
     "notas", "nota", "observaciones", "remarques", "commentaires", "anmerkung", "anmerkungen", "annotazioni",
     "заметки", "备注", "附注", "注释", "備註", "附註", "ملاحظات", "ملاحظة"},
    // groups
    {"groups", "group", "categories", "category", "labels", "groupmembership", "kategorien", "kategorie", "gruppen",
     "gruppe", "catégories", "categorías", "categoria", "categorie", "groupes", "grupos", "gruppi", "categorylist",
     "категории", "类别", "分组", "组", "類別", "群組", "فئات", "الفئات", "مجموعات", "المجموعات"},
};
// clang-format on

} // namespace

const KnownTitles& knownTitles()
{
    return known;
}

std::string normalisedTitle(const std::string& title)
{
    std::u16string units;
    appendUtf16(title, units);
    std::u16string kept;
    for (const char16_t c : units)
        if (const char16_t low = lowered(c); counts(low))
            kept.push_back(low);
    std::string out;
    appendUtf8(kept, out);
    return out;
}

} // namespace orva
