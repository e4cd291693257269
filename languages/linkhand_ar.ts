<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>linkhand</name>
    <message>
        <source>IDS_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT</source>
        <translation>حول Linkhand</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_DOTS</source>
        <translation>حول البرنامج…</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_LICENCE</source>
        <translation>برنامج حر بموجب رخصة MIT، دون أي ضمان.</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_QT</source>
        <translation>يعمل مع Qt %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_RELEASE</source>
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_WHAT</source>
        <translation>جهات الاتصال والرسائل والمكالمات لمودم النطاق العريض المحمول.</translation>
    </message>
    <message>
        <source>IDS_HOST_CALL_FAILED</source>
        <translation>تعذّر على المودم إجراء المكالمة</translation>
    </message>
    <message>
        <source>IDS_HOST_CALL_INCOMING</source>
        <translation>مكالمة من %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CALL_NOT_CONNECTED</source>
        <translation>لم تمرّر الشبكة المكالمة: قد يكون السبب الرقم أو الرصيد أو البطاقة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARD_INSERTED</source>
        <translation>بطاقة SIM مُدخلة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ALIKE_NUMBER</source>
        <translation>رقم واحد وأسماء مختلفة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ALIKE_SAME</source>
        <translation>الشخص نفسه</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUPS</source>
        <translation>النسخ الاحتياطية</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUPS_HINT</source>
        <translation>نسخ من دليل الهاتف على الكمبيوتر، تُنشأ تلقائيًا مرة في اليوم وقبل التغييرات الكبيرة. تبقى آخر %1 نسخ. قبل الاستعادة تُحفظ نسخة من الموجود.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUPS_NONE</source>
        <translation>لا توجد نسخة احتياطية بعد.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_ASKED</source>
        <translation>أُنشئت يدويًا</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_DAILY</source>
        <translation>مرة في اليوم</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_IMPORT</source>
        <translation>قبل استيراد</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_MADE</source>
        <translation>أُنشئت النسخة الاحتياطية.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_MERGE</source>
        <translation>قبل دمج</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_MIGRATION</source>
        <translation>قبل إصدار جديد</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_NOW</source>
        <translation>نسخ احتياطي الآن</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_RESTORE</source>
        <translation>قبل استعادة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_RESTORE_DOTS</source>
        <translation>استعادة…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_SOUND</source>
        <translation>سليمة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_VERIFIED</source>
        <translation>النسخ المفحوصة: %1، السليمة: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_VERIFY</source>
        <translation>فحص الكل</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN</source>
        <translation>المحذوفات</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_CHANGED</source>
        <translation>عُدّلت</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_DELETED</source>
        <translation>حُذفت</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_HINT</source>
        <translation>ما حُذف أو استُبدل على الكمبيوتر يبقى هنا لمدة %1 يومًا. جهة الاتصال المستعادة تكون مستقلة، وتبقى المعدَّلة بجانبها كما هي الآن.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_NONE</source>
        <translation>لا يوجد شيء هنا.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_RESTORE</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_RESTORED</source>
        <translation>جهات الاتصال المستعادة: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK</source>
        <translation>الفحص</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_GROUPS</source>
        <translation>مجموعات لا تؤخذ هنا، والاستيراد من صفحة العناية يأخذها</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NO_GROUP</source>
        <translation>لم يوضع في هذه المجموعة: لا يمكن أن تحمل هذا الاسم</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_REFUSED</source>
        <translation>رُفض عند الحفظ (%1)</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT</source>
        <translation>استيراد وتصدير</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_HINT</source>
        <translation>يجلب جهات الاتصال مع مجموعاتها من ملفات vCard وCSV ومن برامج أخرى. ترى أولاً ما سيأتي، ولا يتغير شيء قبل الضغط على استيراد.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_FILE</source>
        <translation>اختيار ملف…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_PROGRAM</source>
        <translation>من %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT</source>
        <translation>تصدير الكل…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_EXISTING</source>
        <translation>جهات الاتصال الموجودة من قبل:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_ADD</source>
        <translation>إضافتها مرة أخرى</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_SKIP</source>
        <translation>تركها</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_UPDATE</source>
        <translation>تحديثها</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_DO</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_LEFT</source>
        <translation>ما تُرك (%1)…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_NONE</source>
        <translation>اختر ملفاً أو برنامجاً لترى ما سيأتي منه.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_OUTCOME</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_NEW</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_CHANGED</source>
        <translation>محدَّث</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_SAME</source>
        <translation>موجود من قبل ولا جديد</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_THERE</source>
        <translation>موجود من قبل وتُرك</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_NOT</source>
        <translation>لم يؤخذ</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_WOULD</source>
        <translation>سيأتي من %1: جديد %2، محدَّث %3، موجود من قبل %4، لا يؤخذ %5</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_DID</source>
        <translation>أتى من %1: جديد %2، محدَّث %3، موجود من قبل %4، لم يؤخذ %5</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_DONE</source>
        <translation>تم الاستيراد من %1. جهات اتصال جديدة: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_CANCELLED</source>
        <translation>أُلغي. ما دخل يبقى، والاستيراد الثاني يتركه.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_UNREADABLE</source>
        <translation>لا شيء في %1 يمكن قراءته كجهات اتصال.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT_DONE</source>
        <translation>كُتب إلى %1. جهات الاتصال: %2.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT_CANCELLED</source>
        <translation>أُلغي. لم يُكتب شيء.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT_KEPT</source>
        <translation>الملف السابق محفوظ بجانبه، وبعد اسمه «‎.~1~‎» أو الرقم التالي الخالي.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_AGAIN</source>
        <translation>إعادة الفحص</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_DAMAGE</source>
        <translation>في %1 وُجد الملف تالفًا واستُبدل بملف جديد.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_FILE</source>
        <translation>الملف التالف محفوظ باسم:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_FINDINGS</source>
        <translation>وُجد تلف: %1. أنشئ نسخة احتياطية واستعد آخر نسخة سليمة.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_HINT</source>
        <translation>يفحص الملف الذي يضم جهات الاتصال على الكمبيوتر.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_SALVAGE</source>
        <translation>ما نجا: جهات الاتصال %1، المجموعات %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_SOUND</source>
        <translation>المخزن سليم. جهات الاتصال: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_WHAT</source>
        <translation>ما عُثر عليه:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_WRITABLE_NOT</source>
        <translation>لا يمكن حفظ جهات الاتصال حاليًا:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_ALIKE</source>
        <translation>ما تشترك فيه</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_CONTACTS</source>
        <translation>جهات الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_FIELD</source>
        <translation>الحقل</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_GROUPS</source>
        <translation>المجموعات</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_MERGED</source>
        <translation>بعد الدمج</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_NUMBER</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_SIDE</source>
        <translation>جهة الاتصال %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_STATE</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_VALUE</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_WHAT</source>
        <translation>ما حدث</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_WHEN</source>
        <translation>متى</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_WHY</source>
        <translation>سبب الإنشاء</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DETAILS</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DETAILS_HINT</source>
        <translation>ما يُحفظ مع جهة الاتصال إلى جانب حقول دليل الهاتف: من ملفات vCard أو مما يُضاف هنا. ويُدرج عند تصدير جهات الاتصال بصيغة vCard.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DETAILS_NONE</source>
        <translation>لا شيء محفوظ إلى جانب الحقول.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DUPLICATES</source>
        <translation>المكررة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DUPLICATES_HINT</source>
        <translation>جهات اتصال تبدو لشخص واحد أو تشترك في رقم. ما لا مكان له في جهة الاتصال المدمجة يُنقل إلى ملاحظاتها، وما كان في كل منها يبقى في المحذوفات.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DUPLICATES_NONE</source>
        <translation>لا أحد مكرر.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_BUSY</source>
        <translation>يستخدم برنامج آخر جهات الاتصال. حاول مرة أخرى بعد قليل.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_FORMAT</source>
        <translation>الملف تالف أو ليس من النوع المتوقع.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_FULL</source>
        <translation>دليل الهاتف ممتلئ.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_GONE</source>
        <translation>لم يعد موجودًا.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_LONG</source>
        <translation>إحدى القيم طويلة جدًا.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_NUMBER</source>
        <translation>أحد الأرقام ليس رقم هاتف.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_READ_ONLY</source>
        <translation>لا يمكن حاليًا إلا قراءة جهات الاتصال.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_SPACE</source>
        <translation>القرص ممتلئ. جهات اتصالك آمنة.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_STORE</source>
        <translation>لم ينجح ذلك (%1)؛ التفاصيل في السجل.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_VERSION</source>
        <translation>كُتب الملف بإصدار أحدث.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADD</source>
        <translation>إضافة تفصيل</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADD_DOTS</source>
        <translation>إضافة…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADR</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADR_HINT</source>
        <translation>سطر لكل منها حتى الفارغ: صندوق البريد، تفاصيل أخرى، الشارع، المدينة، المنطقة، الرمز البريدي، البلد.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_BDAY</source>
        <translation>تاريخ الميلاد</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_BDAY_HINT</source>
        <translation>السنة والشهر واليوم، مثل 1990-12-31.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_EDIT_DOTS</source>
        <translation>تحرير…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_EMAIL</source>
        <translation>بريد إلكتروني آخر</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_NICKNAME</source>
        <translation>اللقب</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_NOTE</source>
        <translation>ملاحظات أخرى</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_OCTETS</source>
        <translation>الحجم بالكيلوبايت: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ORG</source>
        <translation>الشركة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_PHOTO</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_REMOVE</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_STORED</source>
        <translation>حُفظ التغيير.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_TEL</source>
        <translation>رقم آخر</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_TITLE</source>
        <translation>المسمى الوظيفي</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_URL</source>
        <translation>عنوان الويب</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGE</source>
        <translation>دمج</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGED</source>
        <translation>ما دُمج في جهة اتصال واحدة: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGE_ALL</source>
        <translation>دمج كل ما هو للشخص نفسه</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGE_QUESTION</source>
        <translation>أشخاص مكررون: %1. هل تريد جعل كل منهم جهة اتصال واحدة؟ تُنشأ نسخة احتياطية قبل ذلك.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORED</source>
        <translation>عاد دليل الهاتف كما كان حينها.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_CHANGES</source>
        <translation>جهات اتصال تعود كما كانت: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_COLUMN</source>
        <translation>ما يتغير</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_FOOT</source>
        <translation>تعود المجموعات أيضًا كما كانت. يُحفظ الموجود الآن في نسخة احتياطية يمكنك الرجوع إليها.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_GOES</source>
        <translation>جهات اتصال تُزال: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_HEAD</source>
        <translation>إذا عاد دليل الهاتف كما كان في %1:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_RETURNS</source>
        <translation>جهات اتصال تعود: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_ROW_CHANGES</source>
        <translation>كما كانت</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_ROW_GOES</source>
        <translation>تُزال</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_ROW_RETURNS</source>
        <translation>تعود</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SEARCH</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SIDES</source>
        <translation>جنبًا إلى جنب</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SKIP</source>
        <translation>تخطٍّ</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC</source>
        <translation>المزامنة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_BUSY</source>
        <translation>تجري مزامنة أخرى، أو يجري تعديل جهة اتصال. حاول مرة أخرى بعد قليل.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CANCELLED</source>
        <translation>أُلغيت. ستكمل المزامنة التالية ما بقي.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CHOOSE_DOTS</source>
        <translation>اختيار…</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CLIENT</source>
        <translation>فشل برنامج الخادم (vdirsyncer):</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CLIENT_NOT</source>
        <translation>يحتاج هذا إلى الحزمة vdirsyncer، ولحلقة المفاتيح إلى libsecret-tools، ويجب أن تكون الحلقة مفتوحة.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_COMMAND</source>
        <translation>يطبعها أمر</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CONFLICT_HERE</source>
        <translation>عُدّل %1 في الجانبين (%2). المعتمد ما في دليل الهاتف، والآخر في المحذوفات.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CONFLICT_THERE</source>
        <translation>عُدّل %1 في الجانبين (%2). المعتمد ما في الجانب الآخر، وما كان في دليل الهاتف في المحذوفات.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_DONE</source>
        <translation>الجانبان متطابقان الآن.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_FOLDER</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_HELD</source>
        <translation>لم تُحذف لكثرتها دفعة واحدة: %1. يحذفها الأمر «pbctl sync --force».</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_HERE</source>
        <translation>دليل الهاتف: أُضيف %1، عُدّل %2، حُذف %3</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_HINT</source>
        <translation>يُبقي جهات اتصال الحاسوب مطابقة لدفتر عناوين على خادم أو لمجلد من بطاقات vCard في الاتجاهين. وما يُستبدل أو يُحذف يكون في المحذوفات.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_KEYRING</source>
        <translation>في حلقة المفاتيح</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LAST</source>
        <translation>آخر مزامنة: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT</source>
        <translation>تُرك %1 كما هو: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_COPY</source>
        <translation>لملف آخر المعرّف (UID) نفسه</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_EMPTY</source>
        <translation>ليس فيه ما له حقل</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_FULL</source>
        <translation>دليل الهاتف ممتلئ</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_LARGE</source>
        <translation>الملف أكبر من ٥ ميغابايت</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_LARGE_CARD</source>
        <translation>ستكون بطاقته أكبر من ٥ ميغابايت</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_LINK</source>
        <translation>لا تُتَّبع الروابط الرمزية</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_NO_CARD</source>
        <translation>لا يحتوي الملف على بطاقة vCard واحدة بالضبط</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_NO_FILE</source>
        <translation>ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_UNREADABLE</source>
        <translation>تتعذر قراءة الملف</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_MARKER</source>
        <translation>المجلد ليس مجلد آخر مزامنة، وقد لا يكون موصولًا. لم يُفعل شيء.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_NEVER</source>
        <translation>لم تجرِ أي مزامنة بعد.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_NONE</source>
        <translation>لم يُعدّ شيء بعد.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_NOW</source>
        <translation>زامن الآن</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_OFFLINE</source>
        <translation>تعذر الوصول إلى الخادم. ما تغيّر ينتظر المزامنة التالية.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_PASSWORD</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SECRET</source>
        <translation>كلمة المرور أو الأمر</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SECRET_THERE</source>
        <translation>فارغ: موجودة من قبل</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SET</source>
        <translation>تم الإعداد.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SETUP</source>
        <translation>إعداد</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_THERE</source>
        <translation>الجانب الآخر: أُضيف %1، عُدّل %2، حُذف %3</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_TIMER</source>
        <translation>كل ١٥ دقيقة</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_TIMER_FAILED</source>
        <translation>تعذر تغيير المؤقت.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_TIMER_NOT</source>
        <translation>يأتي المؤقت مع الحزمة وهو غير موجود هنا.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_URL</source>
        <translation>العنوان (URL)</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_URL_BAD</source>
        <translation>ليس هذا عنوان دفتر عناوين ولا مسار مجلد.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_URL_OPEN</source>
        <translation>ستمر كلمة المرور مكشوفة عبر الشبكة: استخدم https.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_USER</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_WITH</source>
        <translation>مطابق لـ</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_WITH_FOLDER</source>
        <translation>مجلد من بطاقات vCard</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_WITH_SERVER</source>
        <translation>دفتر عناوين على خادم (CardDAV)</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_WORKING</source>
        <translation>جارٍ العمل…</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_KIND</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_PARTNER</source>
        <translation>إلى أو من</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_STATE</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_TEXT</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_TIME</source>
        <translation>وقت الكتابة</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_TO</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_FAILED</source>
        <translation>تعذّر نسخ جهات الاتصال إلى الكمبيوتر. يبقى العتاد مُحاكى.</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_NOT</source>
        <translation>عدم النسخ</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_OFFER</source>
        <translation>في البطاقة والجهاز المُحاكيين جهات اتصال ليست على الكمبيوتر، وعددها: %1. مع المودم تُعرض جهات اتصاله هو مكانها. هل تريد نسخ ما في البطاقة والجهاز المُحاكيين إلى الكمبيوتر؟ وهي تعود أيضًا متى صار العتاد مُحاكى من جديد.</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_TO_PC</source>
        <translation>نسخ إلى الكمبيوتر</translation>
    </message>
    <message>
        <source>IDS_HOST_COUNT_CONTACTS</source>
        <translation>جهات الاتصال: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_COUNT_FOUND</source>
        <translation>نتائج البحث: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_COUNT_SELECTED</source>
        <translation>المحدد: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_DELETE</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>IDS_HOST_DELETE_QUESTION</source>
        <translation>هل تريد حذف الرسالة المحددة؟</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_ATTACHED</source>
        <translation>الجهاز موصول</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_HINT</source>
        <translation>الجهاز مُحاكى. تحاكي هذه المفاتيح ما كان سيبلّغ عنه المودم.</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_TIP</source>
        <translation>إظهار لوحة الجهاز أو إخفاؤها</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_TITLE</source>
        <translation>جهاز مُحاكى</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCARD</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>IDS_HOST_FORWARD</source>
        <translation>إعادة توجيه</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE</source>
        <translation>العتاد:</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_AUTO</source>
        <translation>مودم يُعثر عليه تلقائيًا</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_FIXED</source>
        <translation>المتغيّر LINKHAND_MODEM في البيئة هو الذي اختار.</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_NEXT</source>
        <translation>يسري هذا ابتداءً من التشغيل التالي.</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_REFUSED</source>
        <translation>تعذّر حفظ هذا الاختيار. يبدأ اسم المنفذ بـ «/dev/».</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_SIMULATED</source>
        <translation>مُحاكى</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_TIP</source>
        <translation>مُحاكى، أو المودم الموجود، أو منفذ مودم مثل ‎/dev/ttyUSB2</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP</source>
        <translation>المفاتيح</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_ALL</source>
        <translation>تحديد كل الصفوف</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_CALL_DELETE</source>
        <translation>حذف المكالمة المحددة من القائمة</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_CONTACTS</source>
        <translation>جهات الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_DOTS</source>
        <translation>المفاتيح…</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_EDIT</source>
        <translation>تحرير جهة الاتصال المحددة</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_ESCAPE</source>
        <translation>إغلاق نافذة أو قائمة أو إنهاء السحب</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_GENERAL</source>
        <translation>في كل مكان</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_GROUPS</source>
        <translation>المجموعات، عندما تكون لوحة المفاتيح في الشجرة</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_MENU</source>
        <translation>فتح قائمة العنصر المحدد</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_MORE</source>
        <translation>تحديد صف إضافي</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_COPY_TO</source>
        <translation>نسخ جهات الاتصال المحددة إلى مجموعة أو إلى البطاقة أو الجهاز</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_ONE_MORE</source>
        <translation>تحديد الصف أو إلغاء تحديده وترك البقية</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_PAGES</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_QUIT</source>
        <translation>إنهاء البرنامج</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SEARCH</source>
        <translation>البحث</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SEARCH_DOWN</source>
        <translation>الانتقال إلى أول جهة اتصال عُثر عليها</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SEARCH_ESCAPE</source>
        <translation>إفراغ مربع البحث، ومرة أخرى لإخفائه</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SPACE</source>
        <translation>ضغط زر أو تأشير مربع أو جهة اتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_TAB</source>
        <translation>الانتقال إلى الجزء التالي أو السابق</translation>
    </message>
    <message>
        <source>IDS_HOST_KEEP_DRAFT</source>
        <translation>حفظ كمسودة</translation>
    </message>
    <message>
        <source>IDS_HOST_KIND_MMS</source>
        <translation>MMS</translation>
    </message>
    <message>
        <source>IDS_HOST_KIND_SMS</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE_TIP</source>
        <translation>اختيار اللغة</translation>
    </message>
    <message>
        <source>IDS_HOST_MANAGER_ABSENT</source>
        <translation>لا يعمل ModemManager: لا رسائل ولا مكالمات.</translation>
    </message>
    <message>
        <source>IDS_HOST_MESSAGES</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>IDS_HOST_MESSAGES_HINT</source>
        <translation>الرسائل المرسلة والمستلمة والمحفوظة. تبقى الرسالة المستلمة على البطاقة حتى تحذفها هنا. لا يمكن إرسال رسائل الوسائط عبر ModemManager، فتُحفظ كمسودات.</translation>
    </message>
    <message>
        <source>IDS_HOST_MMS_KEPT</source>
        <translation>حُفظت رسالة MMS إلى %1 كمسودة: لا يستطيع ModemManager إرسال رسائل الوسائط</translation>
    </message>
    <message>
        <source>IDS_HOST_MODE</source>
        <translation>المنتج</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ABSENT</source>
        <translation>ليس لدى ModemManager مودم كهذا.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NETWORK</source>
        <translation>الشبكة: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NOT_ON</source>
        <translation>تعذّر تشغيل المودم</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ON</source>
        <translation>تشغيل المودم</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SIGNAL</source>
        <translation>الإشارة: %1 %</translation>
    </message>
    <message>
        <source>IDS_HOST_MODE_SIM</source>
        <translation>مع بطاقة SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_MODE_UIM</source>
        <translation>مع بطاقة UIM</translation>
    </message>
    <message>
        <source>IDS_HOST_NETWORK_ON</source>
        <translation>مسجَّل في الشبكة</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_MMS</source>
        <translation>رسالة MMS جديدة</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_SMS</source>
        <translation>رسالة SMS جديدة</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTICES</source>
        <translation>الإشعارات</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTICES_TIP</source>
        <translation>عرض آخر الإشعارات</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>IDS_HOST_OUTBOX</source>
        <translation>صندوق الصادر</translation>
    </message>
    <message>
        <source>IDS_HOST_OUTBOX_FAILED</source>
        <translation>تعذّرت الكتابة في صندوق الصادر.</translation>
    </message>
    <message>
        <source>IDS_HOST_OUTBOX_HINT</source>
        <translation>الجهاز مُحاكى: تنتظر الرسائل هنا، ولم يُرسل أي شيء.</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_AddrBookUIPlugin</source>
        <translation>دليل الهاتف</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_Care</source>
        <translation>العناية</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_FAILED</source>
        <translation>لا يمكن عرض هذه الصفحة: الملحق «%1» مفقود أو لم يبدأ تشغيله.</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_Messages</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_Preferences</source>
        <translation>التفضيلات</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_VoiceCallPlugin</source>
        <translation>المكالمات</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN</source>
        <translation>رمز PIN للبطاقة</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_ASKED</source>
        <translation>يجري سؤال البطاقة…</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_BLOCKED</source>
        <translation>محظور</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_FAILED</source>
        <translation>تعذّر إعطاء رمز PIN للبطاقة: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_HINT</source>
        <translation>تطلب البطاقة رمز PIN. يُرسل إلى البطاقة مرة واحدة ولا يُحفظ في أي مكان.</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_OFF</source>
        <translation>غير مطلوب</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_READY</source>
        <translation>أُدخل، والبطاقة جاهزة</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_REQUIRED</source>
        <translation>مطلوب</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_SURE</source>
        <translation>أنا متأكد من صحة هذا الرمز</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_TITLE</source>
        <translation>رمز PIN للبطاقة</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_TRIES</source>
        <translation>المحاولات المتبقية: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_TRIES_UNKNOWN</source>
        <translation>لا يُخبر المودم بعدد المحاولات المتبقية.</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_UNLOCK</source>
        <translation>فتح القفل</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_WARNING</source>
        <translation>قد تكون هذه المحاولة الأخيرة: بعد رمز خاطئ آخر تُحظر البطاقة.</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_WRONG</source>
        <translation>كان هذا الرمز خاطئًا.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_ABSENT</source>
        <translation>الملحق غير مثبَّت.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_BUILDKEY</source>
        <translation>بُني الملحق لنظام آخر أو لمصرِّف آخر: %1.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOLDER</source>
        <translation>يمكن لآخرين تغيير هذا المجلد، ولم يُحمَّل أي ملحق. اسحب هذا الحق (chmod go-w) إن كنت تثق بمحتواه.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT</source>
        <translation>تعذّر بدء تشغيل الملحق.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INTERFACE</source>
        <translation>يفتقر الملحق إلى الواجهة التي يحتاجها هذا البرنامج.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LINK</source>
        <translation>الملف رابط ولم يُحمَّل. ضع الملحق نفسه في المجلد.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD</source>
        <translation>تعذّر تحميل الملحق: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_NO_LIBRARY</source>
        <translation>الملف ليس مكتبة مشتركة.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_NO_VERIFICATION</source>
        <translation>الملف ليس ملحقًا لهذا البرنامج: فهو لا يذكر إصدار Qt الذي بُني له.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_OWNER</source>
        <translation>الملف مملوك لمستخدم آخر ولم يُحمَّل.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TWICE</source>
        <translation>هناك ملحق آخر محمَّل بالمعرِّف نفسه.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_UNREADABLE</source>
        <translation>لا يمكن قراءة الملف.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_VERSION</source>
        <translation>بُني الملحق لإصدار Qt %1، وهو ليس إصدار Qt الذي يستخدمه هذا البرنامج.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_WRITABLE</source>
        <translation>يستطيع مستخدمون آخرون الكتابة في الملف، لذا لم يُحمَّل. إذا كنت تثق بالملف فأزل هذا الإذن (chmod go-w).</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_BACKUP</source>
        <translation>نسخ جهات الاتصال احتياطيًا مرة كل يوم</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_BACKUPS_DOTS</source>
        <translation>النسخ الاحتياطية…</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_CALLS</source>
        <translation>عرض المكالمات في قائمة جهات الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COLUMNS</source>
        <translation>الإبقاء على عرض الأعمدة وترتيبها بين القوائم</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COUNTRY</source>
        <translation>بلد الأرقام:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COUNTRY_NONE</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COUNTRY_SYSTEM</source>
        <translation>حسب إعداد النظام</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_DUAL_MODE</source>
        <translation>إخفاء البطاقة والجهاز مع بطاقة ثنائية النمط</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_GENERAL</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_HARDWARE</source>
        <translation>العتاد</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_HINT</source>
        <translation>تتغير اللغة وملاحظة الترحيب فورًا، والباقي يسري من التشغيل التالي.</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_LANGUAGE</source>
        <translation>اللغة:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_NAME_UNITS</source>
        <translation>احتساب كل حرف في الاسم على البطاقة حرفًا واحدًا</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_SIM_WORD</source>
        <translation>تسمية بطاقة SIM:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_START</source>
        <translation>صفحة البداية:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_START_LAST</source>
        <translation>آخر صفحة استُخدمت</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_UIM_WORD</source>
        <translation>تسمية بطاقة UIM:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_WELCOME</source>
        <translation>إظهار ملاحظة فوق دليل الهاتف الفارغ</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEMS</source>
        <translation>المشكلات</translation>
    </message>
    <message>
        <source>IDS_HOST_REPLY</source>
        <translation>رد…</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCH_MESSAGES</source>
        <translation>البحث في الرسائل</translation>
    </message>
    <message>
        <source>IDS_HOST_SEND_AGAIN</source>
        <translation>إرسال مرة أخرى…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CHANGED</source>
        <translation>تغيّر في مكان آخر: إظهار</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_MOBILE</source>
        <translation>الجوال</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_OFFICE</source>
        <translation>العمل</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_HOME</source>
        <translation>المنزل</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_EMAIL</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_NOTES</source>
        <translation>ملاحظات</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS</source>
        <translation>ما لم يأخذه الاستيراد</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_COUNT</source>
        <translation>متبقٍّ من الاستيراد: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_TIP</source>
        <translation>يعرض ما لم يأخذه آخر استيراد كما هو</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_HEAD</source>
        <translation>لم يؤخذ من %1، أو لم يؤخذ كما هو:</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_MORE</source>
        <translation>و%1 غيرها.</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_ROW</source>
        <translation>السطر</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_COLUMN</source>
        <translation>العمود</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_REASON</source>
        <translation>السبب</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_VALUE</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_COPY</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_SAVE</source>
        <translation>حفظ كنص…</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_NOT_SAVED</source>
        <translation>تعذّرت كتابة %1.</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NUMBERED</source>
        <translation>العمود %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_QUOTE</source>
        <translation>تم تخطي السطر: علامة اقتباس لم تُغلق</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ROW_LENGTH</source>
        <translation>تم تخطي الصف: طويل جدًا</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ROW_COLUMNS</source>
        <translation>تم تخطي الصف: أعمدة كثيرة جدًا</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ZERO</source>
        <translation>تم تخطي الصف: بايت صفري</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NOT_TEXT</source>
        <translation>تم تخطي الصف: ليس نصًا</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_VALUE_LENGTH</source>
        <translation>تم تخطي الصف: القيمة طويلة جدًا</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_EMPTY</source>
        <translation>لم يؤخذ: لا شيء له حقل</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_COLUMN</source>
        <translation>لا حقل له؛ عدد القيم: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PROPERTY</source>
        <translation>لا حقل له</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_FURTHER</source>
        <translation>قيمة إضافية لا حقل لها</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_SEVERAL</source>
        <translation>أُخذ الأول فقط من عدة قيم</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_EMAIL</source>
        <translation>وُضع في الملاحظات: ليس عنوان بريد</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NOTE_CUT</source>
        <translation>قُصّرت الملاحظات إلى ما يتسع</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NAME_CUT</source>
        <translation>قُصّر الاسم إلى ما يتسع</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NUMBER</source>
        <translation>لم تؤخذ جهة الاتصال: ليس رقم هاتف</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_TOO_LONG</source>
        <translation>لم تؤخذ جهة الاتصال: أطول من حقلها</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_FULL</source>
        <translation>لا مكان من هنا فصاعدًا؛ جهات الاتصال: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_END</source>
        <translation>تُركت البطاقة: بلا نهاية</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_LENGTH</source>
        <translation>تُركت البطاقة: طويلة جدًا</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_LINES</source>
        <translation>تُركت البطاقة: أسطر كثيرة جدًا</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_OUTSIDE</source>
        <translation>تم تخطي نص خارج البطاقة</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_VERSION</source>
        <translation>إصدار غير معروف، قُرئ كإصدار 3.0</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_LINE</source>
        <translation>السطر ليس جزءًا من بطاقة</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_ENCODING</source>
        <translation>الملف بترميز UTF-16 ولا تُكتب به بطاقة</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_NONE</source>
        <translation>لا يحتوي الملف على بطاقة</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PHOTO</source>
        <translation>الصورة</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_BIRTHDAY</source>
        <translation>تاريخ الميلاد</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ADDRESS</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_COMPANY</source>
        <translation>الشركة</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_JOB</source>
        <translation>المسمى الوظيفي</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PAGE</source>
        <translation>عنوان الويب</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_GROUP</source>
        <translation>المجموعة</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NICKNAME</source>
        <translation>اللقب</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PHONE</source>
        <translation>رقم آخر</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_MAIL</source>
        <translation>بريد إلكتروني آخر</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NOTE</source>
        <translation>ملاحظات أخرى</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NAME</source>
        <translation>اسم إضافي</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_DONE</source>
        <translation>جهات الاتصال المستوردة: %1 من %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_HEAD</source>
        <translation>جهات الاتصال في «%1». تُضاف إلى دليل الهاتف عند استيرادها.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_IMPORT</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_NONE</source>
        <translation>لا توجد جهات اتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_NOT_POSSIBLE</source>
        <translation>المكتبة المستخدمة لا تستورد جهات الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_PROGRESS</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_TITLE</source>
        <translation>استيراد جهات الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_UNREADABLE</source>
        <translation>لا يمكن قراءة هذا الملف كجهات اتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_ELSEWHERE_FOREIGN</source>
        <translation>برنامج لمستخدم آخر أخذ الموضع الذي يستجيب فيه Linkhand. لم يُفتح شيء.</translation>
    </message>
    <message>
        <source>IDS_HOST_ELSEWHERE_NO_ANSWER</source>
        <translation>يعمل Linkhand مع دليل الهاتف هذا من قبل لكنه لا يستجيب. انتظر قليلاً ثم شغّله مرة أخرى.</translation>
    </message>
    <message>
        <source>IDS_HOST_ELSEWHERE_TOO_MUCH</source>
        <translation>هذا أكثر مما يفتحه Linkhand دفعة واحدة. لم يُفتح شيء.</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_ALREADY</source>
        <translation>أُعيد تشغيل Linkhand: هذه نافذته</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_CODE</source>
        <translation>«%1» رمز. لا يطلب Linkhand رموزاً واردة من مصدر آخر.</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_EXTENSION</source>
        <translation>التحويلة: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_NO_PLUGIN</source>
        <translation>لا يمكن فتح هذا: المكون الإضافي الخاص به غير موجود</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_REFUSED</source>
        <translation>لا يستطيع Linkhand فتح هذا</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_WAITS</source>
        <translation>ما يُراد فتحه ينتظر إغلاق مربع الحوار</translation>
    </message>
    <message>
        <source>IDS_HOST_CONTACT_GONE</source>
        <translation>جهة الاتصال هذه لم تعد موجودة: حذفها برنامج آخر</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEMS_COUNT</source>
        <translation>المشكلات: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEMS_HEAD</source>
        <translation>يعمل Linkhand، لكن ما يلي لم ينجح:</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_DAMAGED</source>
        <translation>كان أحد المخازن تالفًا. احتُفظ به في هذا الملف، ونُقل ما أمكنت قراءته منه إلى مخزن جديد.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_FILE</source>
        <translation>الملف مفقود؛ أعد تثبيت Linkhand لاستعادته.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_FOLDER_CREATE</source>
        <translation>تعذّر إنشاء مجلد البيانات. لا يمكن حفظ جهات الاتصال والرسائل.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_FOLDER_WRITE</source>
        <translation>لا يمكن الكتابة في مجلد البيانات. لا يمكن حفظ التغييرات في جهات الاتصال والرسائل.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_LOSS</source>
        <translation>رفض القرص تغييرات كانت قد قُبلت على %1 من جهات الاتصال، وقد فُقدت. أفسِح مساحة على القرص وراجع قائمة جهات الاتصال.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_MESSAGES</source>
        <translation>يتعذر فتح الرسائل، ولا يمكن حفظ رسائل جديدة. ربما كتبها إصدار أحدث.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_MODEM</source>
        <translation>تعذّر الوصول إلى جهات الاتصال على بطاقته وفيه: %1. في الطرفية يوضّح الأمر «pbctl modem» المزيد وما ينبغي فعله.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_NO_SPACE</source>
        <translation>القرص ممتلئ. جهات اتصالك محفوظة ويمكن قراءتها؛ ويمكن حفظ التغييرات من جديد حالما تتوفر مساحة.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_OUTBOX</source>
        <translation>كان صندوق الصادر تالفًا. حُفظ بهذا الملف، ونُقل منه ما أمكنت قراءته.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_READ_ONLY</source>
        <translation>لا يمكن هنا إلا قراءة دليل الهاتف. جهات اتصالك محفوظة، لكن لا يمكن حفظ التغييرات.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_STORE</source>
        <translation>تعذّر فتح دليل الهاتف (الرمز %1).</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_STORE_NEWER</source>
        <translation>كُتب دليل الهاتف بإصدار أحدث من Linkhand وتُرك كما هو.</translation>
    </message>
    <message>
        <source>IDS_HOST_RADIO_ON</source>
        <translation>الإرسال اللاسلكي مفعَّل</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCH_HINT</source>
        <translation>البحث في جهات الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_SEND</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>IDS_HOST_SEND_FAILED</source>
        <translation>لا يمكن إرسال الرسالة الآن.</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_FAILED</source>
        <translation>لم تُرسل رسالة SMS إلى %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_KEPT</source>
        <translation>لم تُرسل رسالة SMS إلى %1 وحُفظت كمسودة: لا توجد شبكة</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_NOT_DELETED</source>
        <translation>تعذّر حذف الرسالة</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_PARTLY</source>
        <translation>فشل إرسال رسالة SMS إلى %1؛ قد يكون جزء منها قد أُرسل</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_RECEIVED</source>
        <translation>رسالة SMS من %1: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_SENT</source>
        <translation>أُرسلت رسالة SMS إلى %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_STORE_FULL</source>
        <translation>لا مكان في المودم للرسائل: احذف بعضها وإلا فلن تصل رسائل أخرى</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_UNCERTAIN</source>
        <translation>رسالة SMS إلى %1: لا أحد يعلم هل أُرسلت</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED</source>
        <translation>سرعة البطاقة والجهاز</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED_INSTANT</source>
        <translation>فورية</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED_REAL</source>
        <translation>١٠ م.ث لكل جهة اتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED_SLOW</source>
        <translation>١٠٠ م.ث لكل جهة اتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DRAFT</source>
        <translation>مسودة، لم تُرسل</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_FAILED</source>
        <translation>لم تُرسل</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_PARTLY</source>
        <translation>فشلت، وربما أُرسل جزء منها</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_RECEIVED</source>
        <translation>مستلمة</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_SENDING</source>
        <translation>يجري الإرسال…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_SENT</source>
        <translation>مرسلة</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_SIMULATED</source>
        <translation>محاكاة، لم تُرسل</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_UNCERTAIN</source>
        <translation>ربما أُرسلت</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CARD</source>
        <translation>البطاقة جاهزة</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CARD_BLOCKED</source>
        <translation>البطاقة محظورة، يلزم رمز PUK</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CARD_LOCKED</source>
        <translation>البطاقة مقفلة</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_DEVICE</source>
        <translation>الجهاز موصول</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_MODEM_FAILED</source>
        <translation>المودم لا يعمل</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NOT_MANAGED</source>
        <translation>لا رسائل ولا مكالمات، ModemManager لا يعرفه</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_CALLS</source>
        <translation>لا مكالمات</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_CARD</source>
        <translation>لا توجد بطاقة</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_DEVICE</source>
        <translation>لا يوجد جهاز</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_MANAGER</source>
        <translation>لا رسائل ولا مكالمات، ModemManager لا يعمل</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_MESSAGES</source>
        <translation>لا رسائل</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_MODEM</source>
        <translation>لا رسائل ولا مكالمات، لا يوجد مودم</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_OFF</source>
        <translation>المودم مغلق</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_OFFLINE</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_ONLINE</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_SIMULATED</source>
        <translation>مُحاكاة</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_UNLOCK</source>
        <translation>إدخال رمز PIN…</translation>
    </message>
    <message>
        <source>IDS_HOST_STORE_WRITABLE</source>
        <translation>يمكن حفظ التغييرات في جهات الاتصال من جديد.</translation>
    </message>
    <message>
        <source>IDS_HOST_TITLE</source>
        <translation>Linkhand</translation>
    </message>
    <message>
        <source>IDS_HOST_UNKNOWN_NUMBER</source>
        <translation>رقم مجهول</translation>
    </message>
    <message>
        <source>IDS_HOST_WELCOME</source>
        <translation>دليل الهاتف فارغ. للبدء، انقر بزر الفأرة الأيمن على الجدول أدناه: أنشئ جهة اتصال جديدة، أو استورد جهات اتصال برنامج آخر من ملف.</translation>
    </message>
    <message>
        <source>IDS_HOST_WELCOME_DISMISS</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>AddrBookUIPlugin</name>
    <message>
        <source>IDS_ADDR_FROM_VALUE</source>
        <translation>العمود</translation>
    </message>
    <message>
        <source>IDS_ADDR_NUMDLG_TITLE</source>
        <translation>اختيار رقم</translation>
    </message>
    <message>
        <source>IDS_ADDR_TO_FIELD</source>
        <translation>الحقل</translation>
    </message>
    <message>
        <source>IDS_ADDR_TO_FROM</source>
        <translation>مأخوذ من</translation>
    </message>
    <message>
        <source>IDS_ADD_RECORD_INFO</source>
        <translation>جهة اتصال جديدة</translation>
    </message>
    <message>
        <source>IDS_Add_GROUP</source>
        <translation>مجموعة جديدة</translation>
    </message>
    <message>
        <source>IDS_Add_GROUP</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>IDS_CONTACT_DETAILS</source>
        <translation>تفاصيل جهة الاتصال</translation>
    </message>
    <message>
        <source>IDS_CONTACT_LIST</source>
        <translation>جهات الاتصال</translation>
    </message>
    <message>
        <source>IDS_COPY_COMPLETE</source>
        <translation>اكتمل النسخ. تُرك ما ليس له حقل أو مكان في الوجهة.</translation>
    </message>
    <message>
        <source>IDS_COPY_STATUS</source>
        <translation>جارٍ نسخ جهات الاتصال…</translation>
    </message>
    <message>
        <source>IDS_DELETE_GROUP</source>
        <translation>هل تريد حذف هذه المجموعة والمجموعات التي بداخلها؟ تبقى جهات الاتصال في دليل الهاتف.</translation>
    </message>
    <message>
        <source>IDS_DELETE_STATUS</source>
        <translation>جارٍ إزالة جهات الاتصال…</translation>
    </message>
    <message>
        <source>IDS_DEL_GROUP</source>
        <translation>حذف المجموعة</translation>
    </message>
    <message>
        <source>IDS_DEL_GROUP</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_EDIT_GROUP</source>
        <translation>إعادة تسمية المجموعة</translation>
    </message>
    <message>
        <source>IDS_EDIT_GROUP</source>
        <comment>shortcut</comment>
        <translation>F2</translation>
    </message>
    <message>
        <source>IDS_EDIT_LINKMAN</source>
        <translation>تحرير جهة الاتصال</translation>
    </message>
    <message>
        <source>IDS_EDIT_LINKMAN</source>
        <comment>shortcut</comment>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>IDS_EMPTY_GROUP</source>
        <translation>لا توجد جهات اتصال في هذه المجموعة بعد.
اسحب جهات اتصال إلى المجموعة من قائمة كل جهات الاتصال.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_MEMORY</source>
        <translation>لا توجد جهات اتصال بعد.
أنشئ واحدة بزر «جهة اتصال جديدة» في شريط الأدوات، أو استورد ملفًا بزر الفأرة الأيمن.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_SEARCH</source>
        <translation>لا توجد جهة اتصال تطابق البحث.</translation>
    </message>
    <message>
        <source>IDS_ERROR_CAPTION</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>IDS_EXPORT_PHONEBOOK</source>
        <translation>تصدير كل جهات الاتصال…</translation>
    </message>
    <message>
        <source>IDS_EXPORT_PHONEBOOKSEL</source>
        <translation>تصدير جهات الاتصال المحددة…</translation>
    </message>
    <message>
        <source>IDS_FLEXIT_UI_DELETE_ITEM</source>
        <translation>هل تريد حذف جهات الاتصال المحددة؟ ستُحذف من دليل الهاتف نفسه وليس من المجموعة فقط. ما كان على الكمبيوتر يبقى في المحذوفات ٣٠ يومًا.</translation>
    </message>
    <message>
        <source>IDS_GROUP_NAME_NULL</source>
        <translation>يُرجى إدخال اسم للمجموعة.</translation>
    </message>
    <message>
        <source>IDS_GROUP_NAME_REPEAT</source>
        <translation>توجد مجموعة بهذا الاسم من قبل.</translation>
    </message>
    <message>
        <source>IDS_ILLEGAL_CHARACTER_EMAIL</source>
        <translation>يحتوي عنوان البريد الإلكتروني على أحرف غير مسموح بها.</translation>
    </message>
    <message>
        <source>IDS_ILLEGAL_EMAIL</source>
        <translation>عنوان البريد الإلكتروني هذا غير صالح.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DEVICEFULL</source>
        <translation>الذاكرة ممتلئة. جهات الاتصال المستوردة: </translation>
    </message>
    <message>
        <source>IDS_IMPORT_IMPORTED_NUMBER</source>
        <translation>، المستورد: </translation>
    </message>
    <message>
        <source>IDS_IMPORT_PHONEBOOK</source>
        <translation>استيراد جهات اتصال…</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STATUS</source>
        <translation>جارٍ استيراد جهات الاتصال…</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TOTAL_NUMBER</source>
        <translation>جهات الاتصال الموجودة: </translation>
    </message>
    <message>
        <source>IDS_INIT_DEV_UNDERWAY</source>
        <translation>لا يزال الجهاز قيد التحضير. يُرجى المحاولة مرة أخرى بعد قليل.</translation>
    </message>
    <message>
        <source>IDS_LOCAL_PHONEBOOKUI</source>
        <translation>الكمبيوتر</translation>
    </message>
    <message>
        <source>IDS_MAP_CAPTION</source>
        <translation>مطابقة الأعمدة والحقول</translation>
    </message>
    <message>
        <source>IDS_MAP_TIPSINFO</source>
        <translation>اسحب كل عمود إلى الحقل الذي سيستقبله. يُفرغ مفتاح Delete الحقل.</translation>
    </message>
    <message>
        <source>IDS_MOVE_COMPLETE</source>
        <translation>اكتمل النقل.</translation>
    </message>
    <message>
        <source>IDS_MOVE_REC_DEV_FULL</source>
        <translation>الذاكرة ممتلئة. الإدخالات المنسوخة: </translation>
    </message>
    <message>
        <source>IDS_MOVE_STATUS</source>
        <translation>جارٍ نقل جهات الاتصال…</translation>
    </message>
    <message>
        <source>IDS_NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>IDS_NORECORDSELECT</source>
        <translation>لم يتم تحديد أي جهة اتصال.</translation>
    </message>
    <message>
        <source>IDS_NV</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>IDS_PHONE_TYPE</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>IDS_PHONE_VALUE</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>IDS_PMBTN_ADD</source>
        <translation>جهة اتصال جديدة</translation>
    </message>
    <message>
        <source>IDS_PMBTN_ADD</source>
        <comment>shortcut</comment>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>IDS_PMBTN_CALL</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>IDS_PMBTN_CALL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>IDS_PMBTN_DELETE</source>
        <translation>حذف جهات الاتصال</translation>
    </message>
    <message>
        <source>IDS_PMBTN_DELETE</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOE</source>
        <translation>استيراد من Outlook Express</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOE</source>
        <comment>shortcut</comment>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOO</source>
        <translation>استيراد من Outlook</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOO</source>
        <comment>shortcut</comment>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>IDS_PMMENU_ADD</source>
        <translation>جهة اتصال جديدة…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_ADD</source>
        <comment>shortcut</comment>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>IDS_PMMENU_CALL</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>IDS_PMMENU_CALL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DELETE</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DELETE</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DETAIL</source>
        <translation>تحرير جهة الاتصال…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DETAIL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOE</source>
        <translation>استيراد من Outlook Express…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOE</source>
        <comment>shortcut</comment>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOO</source>
        <translation>استيراد من Outlook…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOO</source>
        <comment>shortcut</comment>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>IDS_PMMENU_REMFRGRP</source>
        <translation>إزالة من المجموعة</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MMS</source>
        <translation>رسالة وسائط متعددة…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MMS</source>
        <comment>shortcut</comment>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MSG</source>
        <translation>رسالة نصية…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MSG</source>
        <comment>shortcut</comment>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>IDS_PMMENU_VIDEO_CALL</source>
        <translation>مكالمة فيديو</translation>
    </message>
    <message>
        <source>IDS_PMTOOLBAR_SEARCH</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>IDS_PMTOOLBAR_SEARCH</source>
        <comment>shortcut</comment>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>دليل الهاتف</translation>
    </message>
    <message>
        <source>IDS_READ_FAILED</source>
        <translation>تتعذر قراءة جهات الاتصال حاليًا.
هذا لا يعني أنها فُقدت.</translation>
    </message>
    <message>
        <source>IDS_RECORD_INFO</source>
        <translation>تحرير جهة الاتصال</translation>
    </message>
    <message>
        <source>IDS_SEND_MMS</source>
        <translation>إرسال رسالة وسائط متعددة…</translation>
    </message>
    <message>
        <source>IDS_SEND_MMS</source>
        <comment>shortcut</comment>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>IDS_SEND_MSG</source>
        <translation>إرسال رسالة نصية…</translation>
    </message>
    <message>
        <source>IDS_SEND_MSG</source>
        <comment>shortcut</comment>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>IDS_SIM</source>
        <translation>بطاقة %s</translation>
    </message>
    <message>
        <source>IDS_SMS_EXPORTFAILURE_COUNT</source>
        <translation>تعذّر تصدير جهات الاتصال.</translation>
    </message>
    <message>
        <source>IDS_SMS_EXPORTSUCCESS_COUNT</source>
        <translation>تم تصدير جهات الاتصال.</translation>
    </message>
    <message>
        <source>IDS_SMS_IMPORTFAILURE_COUNT</source>
        <translation>تعذّرت قراءة جهات الاتصال.</translation>
    </message>
    <message>
        <source>IDS_STR_MAKECALLFAILED</source>
        <translation>تعذّر بدء المكالمة.</translation>
    </message>
    <message>
        <source>IDS_STR_REPEARTEDNUMBER</source>
        <translation>هذا الرقم مسجَّل لجهة اتصال أخرى. هل تريد حفظ جهة الاتصال مع ذلك؟</translation>
    </message>
    <message>
        <source>IDS_STR_STATINFORMATION</source>
        <translation>الأرقام: %d، المحدد: %d</translation>
    </message>
    <message>
        <source>IDS_SUCCESS_COUNT</source>
        <translation>، الناجح: </translation>
    </message>
    <message>
        <source>IDS_TOTAL_COUNT</source>
        <translation>الإدخالات: </translation>
    </message>
    <message>
        <source>IDS_UNSUCCESS</source>
        <translation>تعذّر حفظ جهة الاتصال. يُرجى التحقق من القيم ومن أن القرص غير ممتلئ.</translation>
    </message>
    <message>
        <source>ID_STR_BUSINESS_PHONE</source>
        <translation>العمل</translation>
    </message>
    <message>
        <source>ID_STR_EMAIL</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>ID_STR_HOME_PHONE</source>
        <translation>المنزل</translation>
    </message>
    <message>
        <source>ID_STR_MOBILE_PHONE</source>
        <translation>الجوال</translation>
    </message>
    <message>
        <source>ID_STR_NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>ID_STR_NOTES</source>
        <translation>ملاحظات</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>حفظ باسم</translation>
    </message>
</context>
<context>
    <name>SMSUIPlugin</name>
    <message>
        <source>IDS_ADD</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>IDS_ADD_RECIPIENTS</source>
        <translation>إضافة مستلمين…</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER</source>
        <translation>«%1» ليس رقم هاتف: يتكون الرقم من أرقام وعلامة + قبلها و * و # فقط.</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER_NAME</source>
        <translation>«%1» ليس رقم هاتف. اختر جهة الاتصال من القائمة التي تظهر أثناء الكتابة.</translation>
    </message>
    <message>
        <source>IDS_BY_NAME</source>
        <translation>حسب الاسم…</translation>
    </message>
    <message>
        <source>IDS_BY_NAME_TITLE</source>
        <translation>المستلمون حسب الاسم</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>IDS_CLOSE_QUESTION</source>
        <translation>لم تُرسل الرسالة. ماذا تريد أن تفعل بها؟</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NUMBER</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>IDS_DRAFT_KEPT</source>
        <translation>حُفظت الرسالة القصيرة كمسودة</translation>
    </message>
    <message>
        <source>IDS_IN_OUTBOX</source>
        <translation>وُضعت رسالة SMS في صندوق الصادر، عدد المستلمين: %1</translation>
    </message>
    <message>
        <source>IDS_KEEP_FAILED</source>
        <translation>تعذر حفظ المسودة.</translation>
    </message>
    <message>
        <source>IDS_LENGTH</source>
        <translation>الأحرف: %1، الرسائل: %2</translation>
    </message>
    <message>
        <source>IDS_LENGTH_TOTAL</source>
        <translation>إلى %1 من المستلمين: المجموع %2</translation>
    </message>
    <message>
        <source>IDS_SAVE_NUMBER</source>
        <translation>حفظ الرقم…</translation>
    </message>
    <message>
        <source>IDS_SEARCH</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>IDS_SEND</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>IDS_SEND_FAILED</source>
        <translation>تعذّر وضع الرسالة في صندوق الصادر.</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP</source>
        <translation>وضع الرسالة في صندوق الصادر</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP_REAL</source>
        <translation>إرسال الرسالة عبر المودم</translation>
    </message>
    <message>
        <source>IDS_SUBJECT</source>
        <translation>الموضوع:</translation>
    </message>
    <message>
        <source>IDS_TEXT</source>
        <translation>الرسالة</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>رسالة SMS جديدة</translation>
    </message>
    <message>
        <source>IDS_TO</source>
        <translation>إلى:</translation>
    </message>
</context>
<context>
    <name>MMSUIPlugin</name>
    <message>
        <source>IDS_ADD</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>IDS_ADD_RECIPIENTS</source>
        <translation>إضافة مستلمين…</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER</source>
        <translation>«%1» ليس رقم هاتف: يتكون الرقم من أرقام وعلامة + قبلها و * و # فقط.</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER_NAME</source>
        <translation>«%1» ليس رقم هاتف. اختر جهة الاتصال من القائمة التي تظهر أثناء الكتابة.</translation>
    </message>
    <message>
        <source>IDS_BY_NAME</source>
        <translation>حسب الاسم…</translation>
    </message>
    <message>
        <source>IDS_BY_NAME_TITLE</source>
        <translation>المستلمون حسب الاسم</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>IDS_CLOSE_QUESTION</source>
        <translation>لم تُرسل الرسالة. ماذا تريد أن تفعل بها؟</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NUMBER</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>IDS_DRAFT_KEPT</source>
        <translation>حُفظت رسالة الوسائط كمسودة</translation>
    </message>
    <message>
        <source>IDS_IN_OUTBOX</source>
        <translation>وُضعت رسالة MMS في صندوق الصادر، عدد المستلمين: %1</translation>
    </message>
    <message>
        <source>IDS_KEEP_DRAFT</source>
        <translation>حفظ كمسودة</translation>
    </message>
    <message>
        <source>IDS_KEEP_FAILED</source>
        <translation>تعذر حفظ المسودة.</translation>
    </message>
    <message>
        <source>IDS_NO_ROAD</source>
        <translation>لا يمكن إرسال رسائل الوسائط عبر ModemManager.</translation>
    </message>
    <message>
        <source>IDS_SAVE_NUMBER</source>
        <translation>حفظ الرقم…</translation>
    </message>
    <message>
        <source>IDS_SEARCH</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>IDS_SEND</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>IDS_SEND_FAILED</source>
        <translation>تعذّر وضع الرسالة في صندوق الصادر.</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP</source>
        <translation>وضع الرسالة في صندوق الصادر</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP_REAL</source>
        <translation>حفظ الرسالة كمسودة</translation>
    </message>
    <message>
        <source>IDS_SUBJECT</source>
        <translation>الموضوع:</translation>
    </message>
    <message>
        <source>IDS_TEXT</source>
        <translation>الرسالة</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>رسالة MMS جديدة</translation>
    </message>
    <message>
        <source>IDS_TO</source>
        <translation>إلى:</translation>
    </message>
</context>
<context>
    <name>VoiceCallPlugin</name>
    <message>
        <source>IDS_ANSWER</source>
        <translation>رد</translation>
    </message>
    <message>
        <source>IDS_CALL</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>IDS_CALL_ACTIVE</source>
        <translation>مكالمة جارية</translation>
    </message>
    <message>
        <source>IDS_CALL_BROKEN</source>
        <translation>فشلت</translation>
    </message>
    <message>
        <source>IDS_CALL_DIALLING</source>
        <translation>جارٍ الاتصال…</translation>
    </message>
    <message>
        <source>IDS_CALL_ENDED</source>
        <translation>انتهت</translation>
    </message>
    <message>
        <source>IDS_CALL_ENDED_BY_OTHER</source>
        <translation>أنهاها الطرف الآخر</translation>
    </message>
    <message>
        <source>IDS_CALL_FAILED</source>
        <translation>تعذّر بدء المكالمة. تأكد من أن الجهاز متصل بالشبكة ومن عدم وجود مكالمة أخرى جارية.</translation>
    </message>
    <message>
        <source>IDS_CALL_FROM_OUTSIDE</source>
        <translation>واردة</translation>
    </message>
    <message>
        <source>IDS_CALL_HELD</source>
        <translation>قيد الانتظار</translation>
    </message>
    <message>
        <source>IDS_CALL_INCOMING</source>
        <translation>مكالمة واردة</translation>
    </message>
    <message>
        <source>IDS_CALL_LOST</source>
        <translation>انقطع الاتصال</translation>
    </message>
    <message>
        <source>IDS_CALL_MISSED</source>
        <translation>فائتة</translation>
    </message>
    <message>
        <source>IDS_CALL_NOT_ANSWERED</source>
        <translation>لا رد</translation>
    </message>
    <message>
        <source>IDS_CALL_NOT_CONNECTED</source>
        <translation>لم تُمرَّر</translation>
    </message>
    <message>
        <source>IDS_CALL_NOT_KEPT</source>
        <translation>تعذّر حفظها</translation>
    </message>
    <message>
        <source>IDS_CALL_NUMBER</source>
        <translation>الاتصال بهذا الرقم</translation>
    </message>
    <message>
        <source>IDS_CALL_OUTGOING</source>
        <translation>صادرة</translation>
    </message>
    <message>
        <source>IDS_CALL_REFUSED</source>
        <translation>رُفضت أو الخط مشغول</translation>
    </message>
    <message>
        <source>IDS_CALL_RINGING</source>
        <translation>يرنّ…</translation>
    </message>
    <message>
        <source>IDS_CALL_SIMULATED</source>
        <translation>محاكاة</translation>
    </message>
    <message>
        <source>IDS_CALL_STATE</source>
        <translation>مكالمة جارية، مُحاكاة</translation>
    </message>
    <message>
        <source>IDS_CALL_UNMARKED</source>
        <translation>لا يُعرف إن كانت محاكاة</translation>
    </message>
    <message>
        <source>IDS_COLUMN_DURATION</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>IDS_COLUMN_KIND</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NUMBER</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>IDS_COLUMN_RESULT</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>IDS_COLUMN_TIME</source>
        <translation>وقت البدء</translation>
    </message>
    <message>
        <source>IDS_DELETE</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>IDS_DELETE_FAILED</source>
        <translation>تعذّر حذف المكالمة.</translation>
    </message>
    <message>
        <source>IDS_DELETE_QUESTION</source>
        <translation>هل تريد حذف المكالمة المحددة من القائمة؟</translation>
    </message>
    <message>
        <source>IDS_HANG_UP</source>
        <translation>إنهاء المكالمة</translation>
    </message>
    <message>
        <source>IDS_HINT</source>
        <translation>الجهاز مُحاكى: تُعرض المكالمة حتى تنهيها، ولا يسمعها أحد.</translation>
    </message>
    <message>
        <source>IDS_HINT_REAL</source>
        <translation>تمر المكالمات عبر المودم لديك. سماعك لشيء يعتمد على المودم.</translation>
    </message>
    <message>
        <source>IDS_MESSAGE</source>
        <translation>رسالة نصية…</translation>
    </message>
    <message>
        <source>IDS_SAVE_NUMBER</source>
        <translation>حفظ الرقم…</translation>
    </message>
    <message>
        <source>IDS_SEARCH</source>
        <translation>البحث في المكالمات</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>المكالمات</translation>
    </message>
    <message>
        <source>IDS_UNKNOWN_NUMBER</source>
        <translation>رقم مجهول</translation>
    </message>
    <message>
        <source>IDS_VIDEO_CALL</source>
        <translation>مكالمة فيديو</translation>
    </message>
</context>
<context>
    <name>VideoCallPlugin</name>
    <message>
        <source>IDS_CALL_STATE</source>
        <translation>مكالمة فيديو جارية، مُحاكاة</translation>
    </message>
    <message>
        <source>IDS_HANG_UP</source>
        <translation>إنهاء المكالمة</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>مكالمة فيديو</translation>
    </message>
</context>
<context>
    <name>NotifyPlugin</name>
    <message>
        <source>IDS_CARD_CAME</source>
        <translation>دليل هاتف البطاقة متاح</translation>
    </message>
    <message>
        <source>IDS_CARD_WENT</source>
        <translation>لم يعد دليل هاتف البطاقة متاحًا</translation>
    </message>
    <message>
        <source>IDS_CONTACT_ADDED</source>
        <translation>أُضيفت جهة اتصال</translation>
    </message>
    <message>
        <source>IDS_CONTACT_CHANGED</source>
        <translation>عُدِّلت جهة الاتصال</translation>
    </message>
    <message>
        <source>IDS_CONTACT_DELETED</source>
        <translation>حُذفت جهة اتصال</translation>
    </message>
    <message>
        <source>IDS_DEVICE_CAME</source>
        <translation>دليل هاتف الجهاز متاح</translation>
    </message>
    <message>
        <source>IDS_DEVICE_WENT</source>
        <translation>لم يعد دليل هاتف الجهاز متاحًا</translation>
    </message>
    <message>
        <source>IDS_NAMED_ADDED</source>
        <translation>أُضيف: %1</translation>
    </message>
    <message>
        <source>IDS_NAMED_CHANGED</source>
        <translation>عُدِّل: %1</translation>
    </message>
    <message>
        <source>IDS_NAMED_DELETED</source>
        <translation>حُذف: %1</translation>
    </message>
    <message>
        <source>IDS_SEVERAL_ADDED</source>
        <translation>أُضيفت عدة جهات اتصال</translation>
    </message>
    <message>
        <source>IDS_SEVERAL_CHANGED</source>
        <translation>عُدِّلت عدة جهات اتصال</translation>
    </message>
    <message>
        <source>IDS_SEVERAL_DELETED</source>
        <translation>حُذفت عدة جهات اتصال</translation>
    </message>
</context>
</TS>
