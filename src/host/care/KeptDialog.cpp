#include "care/KeptDialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "linkhand/QtCompat.h"
#include "text/HostText.h"

namespace
{

const struct {
    const char* pszName;
    const char* pszTitleId;
    bool bNew; // can be added as a text
} KINDS[] = {
    {"ADR", "IDS_HOST_CARE_KEPT_ADR", true},           {"BDAY", "IDS_HOST_CARE_KEPT_BDAY", true},
    {"EMAIL", "IDS_HOST_CARE_KEPT_EMAIL", true},       {"TEL", "IDS_HOST_CARE_KEPT_TEL", true},
    {"ORG", "IDS_HOST_CARE_KEPT_ORG", true},           {"TITLE", "IDS_HOST_CARE_KEPT_TITLE", true},
    {"NICKNAME", "IDS_HOST_CARE_KEPT_NICKNAME", true}, {"URL", "IDS_HOST_CARE_KEPT_URL", true},
    {"NOTE", "IDS_HOST_CARE_KEPT_NOTE", true},         {"PHOTO", "IDS_HOST_CARE_KEPT_PHOTO", false},
};

// Without its group and its parameters.
QString nameOf(const QString& strHead)
{
    return strHead.section(QLatin1Char(';'), 0, 0).section(QLatin1Char('.'), -1).toUpper();
}

// What a vCard calls the use of an address or a number.
const struct {
    const char* pszName;
    const char* pszTitleId;
} USES[] = {{"HOME", "IDS_HOST_FIELD_HOME"}, {"WORK", "IDS_HOST_FIELD_OFFICE"}, {"CELL", "IDS_HOST_FIELD_MOBILE"}};

QString useOf(const QString& strType)
{
    for (const auto& use : USES) {
        if (strType.compare(QLatin1String(use.pszName), Qt::CaseInsensitive) == 0) {
            return HostText::Get(use.pszTitleId);
        }
    }
    return strType.toLower();
}

} // namespace

QString KeptText::Title(const QString& strHead)
{
    QString strTitle = nameOf(strHead);
    for (const auto& kind : KINDS) {
        if (strTitle == QLatin1String(kind.pszName)) {
            strTitle = HostText::Get(kind.pszTitleId);
            break;
        }
    }
    const int iType = strHead.indexOf(QLatin1String(";TYPE="), 0, Qt::CaseInsensitive);
    const QString strTypes = iType < 0 ? QString() : strHead.mid(iType + 6).section(QLatin1Char(';'), 0, 0);
    if (strTypes.isEmpty()) {
        return strTitle;
    }
    QStringList lstUses;
    foreach (const QString& strType, strTypes.split(QLatin1Char(','))) {
        lstUses << useOf(strType);
    }
    return QString::fromLatin1("%1 (%2)").arg(strTitle, lstUses.join(QLatin1String(", ")));
}

QString KeptText::Value(const KeptProperty& property)
{
    if (property.bOctets) {
        const int iKilobytes = int(property.strValue.length() * 3 / 4 + 1023) / 1024;
        return HostText::Get("IDS_HOST_CARE_KEPT_OCTETS").arg(QLocale().toString(iKilobytes));
    }
    QStringList lstLines = property.strValue.split(QLatin1Char('\n'));
    lstLines.removeAll(QString());
    return lstLines.join(QLatin1String(", "));
}

KeptDialog::KeptDialog(const KeptProperty& property, QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG),
      m_strHead(property.strHead),
      m_pKind(new QComboBox),
      m_pHint(new QLabel),
      m_pValue(new QPlainTextEdit)
{
    setObjectName(QLatin1String("linkhand_Kept"));
    const QString strTitle = m_strHead.isEmpty() ? HostText::Get("IDS_HOST_CARE_KEPT_ADD") : KeptText::Title(m_strHead);
    setWindowTitle(strTitle);
    m_pKind->setObjectName(QLatin1String("linkhand_Kept_kind"));
    m_pKind->setAccessibleName(HostText::Get("IDS_HOST_CARE_COLUMN_FIELD"));
    for (const auto& kind : KINDS) {
        if (kind.bNew) {
            m_pKind->addItem(HostText::Get(kind.pszTitleId), QLatin1String(kind.pszName));
        }
    }
    m_pHint->setWordWrap(true);
    m_pValue->setObjectName(QLatin1String("linkhand_Kept_value"));
    m_pValue->setAccessibleName(strTitle);
    m_pValue->setTabChangesFocus(true);
    m_pValue->setPlainText(property.strValue);
    QPushButton* pOk = new QPushButton(HostText::Get("IDS_OK"));
    pOk->setObjectName(QLatin1String("linkhand_Kept_ok"));
    pOk->setDefault(true);
    QPushButton* pCancel = new QPushButton(HostText::Get("IDS_CANCEL"));
    pCancel->setObjectName(QLatin1String("linkhand_Kept_cancel"));
    connect(pOk, SIGNAL(clicked()), this, SLOT(accept()));
    connect(pCancel, SIGNAL(clicked()), this, SLOT(reject()));
    connect(m_pKind, SIGNAL(currentIndexChanged(int)), this, SLOT(OnKindChosen()));

    QWidget* pContent = new QWidget;
    QHBoxLayout* pButtons = new QHBoxLayout;
    pButtons->addStretch(1);
    pButtons->addWidget(pOk);
    pButtons->addWidget(pCancel);
    QVBoxLayout* pLayout = new QVBoxLayout(pContent);
    pLayout->addWidget(m_pKind);
    pLayout->addWidget(m_pHint);
    pLayout->addWidget(m_pValue, 1);
    pLayout->addLayout(pButtons);
    pContent->setMinimumSize(380, 240);
    m_pKind->setVisible(m_strHead.isEmpty());
    AddMainWidget(pContent);
    OnKindChosen();
    (m_strHead.isEmpty() ? static_cast<QWidget*>(m_pKind) : m_pValue)->setFocus(Qt::OtherFocusReason);
}

QString KeptDialog::Head() const
{
    return m_strHead.isEmpty() ? m_pKind->itemData(m_pKind->currentIndex()).toString() : m_strHead;
}

QString KeptDialog::Value() const
{
    const QString strValue = m_pValue->toPlainText();
    return strValue.trimmed().isEmpty() ? QString() : strValue;
}

void KeptDialog::OnKindChosen()
{
    const QString strName = nameOf(Head());
    const bool bAddress = strName == QLatin1String("ADR");
    m_pHint->setText(HostText::Get(bAddress ? "IDS_HOST_CARE_KEPT_ADR_HINT" : "IDS_HOST_CARE_KEPT_BDAY_HINT"));
    m_pHint->setVisible(bAddress || strName == QLatin1String("BDAY"));
}
