#include "care/CheckSection.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "care/CareSdk.h"
#include "care/CareText.h"
#include "linkhand/QtCompat.h"
#include "linkhand/SdkText.h"
#include "text/HostText.h"

namespace
{

QString paragraph(const QString& strText)
{
    const QString strLines = QtCompat::htmlEscaped(strText).replace(QLatin1Char('\n'), QLatin1String("<br/>"));
    return QLatin1String("<p>") + strLines + QLatin1String("</p>");
}

// Words and paths of the system read from left to right in every language.
QString foreign(const QString& strText)
{
    return QLatin1String("<p dir=\"ltr\"><code>") +
           QtCompat::htmlEscaped(strText).replace(QLatin1Char('\n'), QLatin1String("<br/>")) +
           QLatin1String("</code></p>");
}

} // namespace

void StoreCheck::Run()
{
    // First what has to open the store, which mends what it can.
    succeeded(ORVA_PBSrv_GetSize(ORVA_MEMORY_LOCAL, &m_result.iContacts));
    SdkText lines;
    if (succeeded(ORVA_Store_CheckInWords(ORVA_MEMORY_LOCAL, &m_result.iFindings, lines.out()))) {
        m_result.strFindings = lines.toString();
    }
    ORVA_STORE_DAMAGE damage = {};
    if (ORVA_Store_GetDamage(ORVA_MEMORY_LOCAL, 0, &damage) == ORVA_OK) {
        m_result.bReplaced = true;
        m_result.iReplaced = damage.time;
        m_result.iSavedContacts = damage.records;
        m_result.iSavedGroups = damage.groups;
        m_result.strFile = SdkText(damage.file).toString();
        m_result.strWhat = SdkText(damage.what).toString();
    }
    ORVA_Store_GetAccess(ORVA_MEMORY_LOCAL, &m_result.nAccess);
}

CheckSection::CheckSection(CareRunner& runner, QWidget* pParent)
    : CareSection(runner, "linkhand_Care_check", pParent),
      m_pHint(new QLabel(this)),
      m_pFound(new QTextBrowser(this)),
      m_pAgain(new QPushButton(this)),
      m_bChecked(false),
      m_nCode(ORVA_OK)
{
    m_pHint->setObjectName(QLatin1String("linkhand_Care_check_hint"));
    m_pHint->setWordWrap(true);
    m_pFound->setObjectName(QLatin1String("linkhand_Care_check_found"));
    m_pAgain->setObjectName(QLatin1String("linkhand_Care_check_again"));
    QHBoxLayout* pBar = new QHBoxLayout;
    pBar->addWidget(m_pHint, 1);
    pBar->addWidget(m_pAgain);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pBar);
    pLayout->addWidget(m_pFound, 1);
    setTabOrder(m_pFound, m_pAgain);
    connect(m_pAgain, SIGNAL(clicked()), this, SLOT(OnAgain()));
}

QString CheckSection::Title() const
{
    return HostText::Get("IDS_HOST_CARE_CHECK");
}

void CheckSection::Retranslate()
{
    m_pHint->setText(HostText::Get("IDS_HOST_CARE_CHECK_HINT"));
    m_pAgain->setText(HostText::Get("IDS_HOST_CARE_CHECK_AGAIN"));
    m_pFound->setAccessibleName(Title());
    show();
}

void CheckSection::Read()
{
    m_bChecked = false;
    show();
    begin(new StoreCheck);
}

void CheckSection::Take(const CareTask& task)
{
    if (const StoreCheck* pCheck = dynamic_cast<const StoreCheck*>(&task)) {
        m_bChecked = true;
        m_nCode = pCheck->Code();
        m_result = pCheck->Found();
        show();
    }
}

QWidget* CheckSection::FocusTarget()
{
    return m_pFound;
}

void CheckSection::OnAgain()
{
    Read();
}

void CheckSection::show()
{
    if (!m_bChecked) {
        m_pFound->setHtml(paragraph(HostText::Get("IDS_HOST_CARE_WORKING")));
        return;
    }
    QString strHtml;
    if (m_nCode != ORVA_OK) {
        strHtml += paragraph(CareText::Explain(m_nCode));
    } else if (m_result.iFindings == 0) {
        strHtml += paragraph(HostText::Get("IDS_HOST_CARE_CHECK_SOUND").arg(QLocale().toString(m_result.iContacts)));
    } else {
        strHtml +=
            paragraph(HostText::Get("IDS_HOST_CARE_CHECK_FINDINGS").arg(QLocale().toString(m_result.iFindings))) +
            foreign(m_result.strFindings);
    }
    if (m_result.nAccess != ORVA_OK) {
        strHtml += paragraph(HostText::Get("IDS_HOST_CARE_CHECK_WRITABLE_NOT") + QLatin1Char('\n') +
                             CareText::Explain(m_result.nAccess));
    }
    if (m_result.bReplaced) {
        strHtml += paragraph(
            HostText::Get("IDS_HOST_CARE_CHECK_DAMAGE").arg(CareText::Time(m_result.iReplaced)) + QLatin1Char('\n') +
            HostText::Get("IDS_HOST_CARE_CHECK_SALVAGE")
                .arg(QLocale().toString(m_result.iSavedContacts), QLocale().toString(m_result.iSavedGroups)));
        strHtml += paragraph(HostText::Get("IDS_HOST_CARE_CHECK_FILE")) + foreign(m_result.strFile);
        strHtml += paragraph(HostText::Get("IDS_HOST_CARE_CHECK_WHAT")) + foreign(m_result.strWhat);
    }
    m_pFound->setHtml(strHtml);
}
