#include "findings/FindingsDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "linkhand/QtCompat.h"
#include "linkhand/core/CommonUtils.h"
#include "text/HostText.h"

namespace
{

const int COLUMN_ROW = 0;
const int COLUMN_COUNT = 4;
const int WIDTHS[COLUMN_COUNT - 1] = {70, 150, 330};

QPushButton* newButton(const char* pszText, const char* pszName, QWidget* pParent)
{
    QPushButton* pButton = new QPushButton(HostText::Get(pszText), pParent);
    pButton->setObjectName(QLatin1String(pszName));
    pButton->setAutoDefault(false);
    return pButton;
}

} // namespace

FindingsDialog::FindingsDialog(const FindingList& findings, QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG), m_findings(findings)
{
    setObjectName(QLatin1String("linkhand_Findings"));
    setWindowTitle(HostText::Get("IDS_HOST_FINDINGS"));
    QWidget* pContent = new QWidget;
    QLabel* pHead = new QLabel(pContent);
    pHead->setObjectName(QLatin1String("linkhand_Findings_head"));
    pHead->setTextFormat(Qt::PlainText);
    pHead->setWordWrap(true);
    pHead->setText(HostText::Get("IDS_HOST_FINDINGS_HEAD").arg(m_findings.Source()));
    m_pList = new QTreeWidget(pContent);
    m_pList->setObjectName(QLatin1String("linkhand_Findings_list"));
    m_pList->setAccessibleName(HostText::Get("IDS_HOST_FINDINGS"));
    fill();
    QLabel* pMore = new QLabel(m_findings.More(), pContent);
    pMore->setVisible(!m_findings.More().isEmpty());
    QPushButton* pCopy = newButton("IDS_HOST_FINDINGS_COPY", "linkhand_Findings_copy", pContent);
    QPushButton* pSave = newButton("IDS_HOST_FINDINGS_SAVE", "linkhand_Findings_save", pContent);
    QPushButton* pClose = newButton("IDS_HOST_CLOSE", "linkhand_Findings_close", pContent);
    pClose->setDefault(true);
    connect(pCopy, SIGNAL(clicked()), this, SLOT(OnCopy()));
    connect(pSave, SIGNAL(clicked()), this, SLOT(OnSave()));
    connect(pClose, SIGNAL(clicked()), this, SLOT(accept()));
    new QShortcut(QKeySequence(QKeySequence::Copy), this, SLOT(OnCopy()));
    new QShortcut(QKeySequence(QKeySequence::Save), this, SLOT(OnSave()));

    QHBoxLayout* pButtons = new QHBoxLayout;
    pButtons->addWidget(pCopy);
    pButtons->addWidget(pSave);
    pButtons->addStretch(1);
    pButtons->addWidget(pClose);
    QVBoxLayout* pLayout = new QVBoxLayout(pContent);
    pLayout->addWidget(pHead);
    pLayout->addWidget(m_pList, 1);
    pLayout->addWidget(pMore);
    pLayout->addLayout(pButtons);
    pContent->setMinimumSize(720, 340);
    AddMainWidget(pContent);
    m_pList->setFocus();
}

void FindingsDialog::fill()
{
    m_pList->setColumnCount(COLUMN_COUNT);
    m_pList->setHeaderLabels(FindingList::Titles());
    m_pList->setRootIsDecorated(false);
    m_pList->setUniformRowHeights(true);
    m_pList->setAlternatingRowColors(true);
    m_pList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (int i = 0; i < COLUMN_COUNT - 1; ++i) {
        m_pList->setColumnWidth(i, WIDTHS[i]);
    }
    QList<QTreeWidgetItem*> items;
    foreach (const FindingList::Entry& entry, m_findings.Entries()) {
        QStringList lstTexts;
        lstTexts << entry.Row() << entry.Column() << entry.Reason() << entry.Value();
        QTreeWidgetItem* pItem = new QTreeWidgetItem(lstTexts);
        pItem->setData(COLUMN_ROW, Qt::TextAlignmentRole, static_cast<int>(Qt::AlignCenter));
        for (int i = 1; i < COLUMN_COUNT; ++i) {
            // A column may be too narrow for it, and marks in it are text.
            pItem->setToolTip(i, QLatin1String("<p>") + QtCompat::htmlEscaped(lstTexts.at(i)) + QLatin1String("</p>"));
        }
        items.append(pItem);
    }
    m_pList->addTopLevelItems(items);
    m_pList->setCurrentItem(m_pList->topLevelItem(0));
}

bool FindingsDialog::SaveTo(const QString& strFile) const
{
    const QByteArray text = m_findings.Text().toUtf8();
    QFile file(strFile);
    // Flushed, so that a full disk shows here.
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(text) == text.size() && file.flush();
}

void FindingsDialog::OnCopy()
{
    QString strText;
    for (int i = 0; i < m_pList->topLevelItemCount(); ++i) {
        if (m_pList->topLevelItem(i)->isSelected()) {
            strText += FindingList::Text(m_findings.Entries().at(i)) + QLatin1Char('\n');
        }
    }
    QApplication::clipboard()->setText(m_pList->selectedItems().size() > 1 ? strText : m_findings.Text());
}

void FindingsDialog::OnSave()
{
    const QString strStart = QDir::home().filePath(m_findings.Source() + QLatin1String(".txt"));
    const QString strFile =
        QFileDialog::getSaveFileName(this, HostText::Get("IDS_HOST_FINDINGS_SAVE"), strStart, QLatin1String("*.txt"));
    if (!strFile.isEmpty() && !SaveTo(strFile)) {
        CommonUtils::ShowMessage(QMessageBox::Critical, this, HostText::Get("IDS_HOST_TITLE"),
                                 HostText::Get("IDS_HOST_FINDINGS_NOT_SAVED").arg(strFile), QLatin1String("IDS_OK"),
                                 QString(), QString(), true, Qt::WindowCloseButtonHint, nullptr, QString(), true);
    }
}
