#include "window/CountryBox.h"

#include <QLocale>
#include <QMap>

#include "orva/orva_care.h"
#include "text/HostText.h"

// Null where the SDK in use does not have them.
#pragma weak ORVA_Care_GetRegion
#pragma weak ORVA_Care_SetRegion

namespace
{

// The entries before the countries, as the SDK calls them.
const char* const BY_SYSTEM = "";
const char* const NONE = "none";
const int FIXED_ENTRIES = 2;

// Two letters of each country to its name in its own language.
const QMap<QString, QString>& countries()
{
    static QMap<QString, QString> s_countries;
    if (s_countries.isEmpty()) {
        foreach (const QLocale& locale,
                 QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
            const QString strCode = locale.name().section(QLatin1Char('_'), -1);
            // Of the languages of a country the one that most speak there.
            const QString strName = QLocale(QLocale::AnyLanguage, locale.country()).nativeCountryName();
            if (strCode.length() == 2 && strCode == strCode.toUpper() && !strName.isEmpty() &&
                !s_countries.contains(strCode)) {
                s_countries.insert(strCode, strName);
            }
        }
    }
    return s_countries;
}

} // namespace

CountryBox::CountryBox(QWidget* pParent) : LateBox(pParent)
{
    setObjectName(QLatin1String("linkhand_Preferences_country"));
    addItem(QString(), QLatin1String(BY_SYSTEM));
    addItem(QString(), QLatin1String(NONE));
    for (QMap<QString, QString>::const_iterator it = countries().constBegin(); it != countries().constEnd(); ++it) {
        // By the code, which is what the keyboard looks for.
        addItem(it.key() + QLatin1String("  ") + it.value(), it.key());
    }
    char szRegion[3] = "";
    const bool bKnown = IsPossible() && ORVA_Care_GetRegion(szRegion) == ORVA_OK;
    setCurrentIndex(qMax(0, findData(QLatin1String(*szRegion == '\0' ? NONE : szRegion))));
    setEnabled(bKnown && qgetenv("LINKHAND_REGION").isEmpty());
    connect(this, SIGNAL(activated(int)), this, SLOT(OnChosen(int)));
}

bool CountryBox::IsPossible()
{
    return &ORVA_Care_GetRegion != nullptr && &ORVA_Care_SetRegion != nullptr;
}

void CountryBox::Retranslate()
{
    const char* const apszIds[FIXED_ENTRIES] = {"IDS_HOST_PREFS_COUNTRY_SYSTEM", "IDS_HOST_PREFS_COUNTRY_NONE"};
    for (int i = 0; i < FIXED_ENTRIES; ++i) {
        setItemText(i, HostText::Get(apszIds[i]));
    }
}

void CountryBox::OnChosen(int iIndex)
{
    ORVA_Care_SetRegion(itemData(iIndex).toString().toLatin1().constData());
}
