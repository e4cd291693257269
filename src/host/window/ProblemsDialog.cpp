#include "window/ProblemsDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "linkhand/QtCompat.h"
#include "text/HostText.h"

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
    // A path reads from left to right and its reason as its language does, but both begin on the same side.
    const QString strEntry = QString::fromLatin1("<p align=\"%1\" style=\"margin-bottom:0px\"><b>%2</b></p>"
                                                 "<p align=\"%1\" style=\"margin-top:0px\">%3</p>");
    const QString strSide = QLatin1String(isRightToLeft() ? "right" : "left");
    QString strHtml;
    foreach (const Problem& problem, problems) {
        strHtml +=
            strEntry.arg(strSide, QtCompat::htmlEscaped(problem.strName), QtCompat::htmlEscaped(problem.Reason()));
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
