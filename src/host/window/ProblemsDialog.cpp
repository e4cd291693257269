#include "window/ProblemsDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "HostText.h"

namespace
{

QString escaped(QString strText)
{
    return strText.replace(QLatin1Char('&'), QLatin1String("&amp;")).replace(QLatin1Char('<'), QLatin1String("&lt;"));
}

} // namespace

ProblemsDialog::ProblemsDialog(const ProblemList& problems, QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG)
{
    setObjectName(QLatin1String("linkhand_Problems"));
    setWindowTitle(HostText::Get("IDS_HOST_PROBLEMS"));
    QWidget* pContent = new QWidget;
    QLabel* pHead = new QLabel(HostText::Get("IDS_HOST_PROBLEMS_HEAD"), pContent);
    pHead->setWordWrap(true);
    QTextBrowser* pList = new QTextBrowser(pContent);
    pList->setObjectName(QLatin1String("linkhand_Problems_list"));
    pList->setAccessibleName(HostText::Get("IDS_HOST_PROBLEMS"));
    QString strHtml;
    foreach (const Problem& problem, problems) {
        strHtml += QLatin1String("<p><b>") + escaped(problem.strName) + QLatin1String("</b><br/>") +
                   escaped(problem.Reason()) + QLatin1String("</p>");
    }
    pList->setHtml(strHtml);
    QPushButton* pClose = new QPushButton(HostText::Get("IDS_HOST_CLOSE"), pContent);
    pClose->setObjectName(QLatin1String("linkhand_Problems_close"));
    pClose->setDefault(true);
    connect(pClose, SIGNAL(clicked()), this, SLOT(accept()));

    QHBoxLayout* pButtons = new QHBoxLayout;
    pButtons->addStretch(1);
    pButtons->addWidget(pClose);
    QVBoxLayout* pLayout = new QVBoxLayout(pContent);
    pLayout->addWidget(pHead);
    pLayout->addWidget(pList, 1);
    pLayout->addLayout(pButtons);
    pContent->setMinimumSize(460, 260);
    AddMainWidget(pContent);
}
