#include "common/RecipientDialog.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "linkhand/QtCompat.h"
#include "linkhand/core/Change.h"
#include "shared/HostContacts.h"
#include "shared/NumberDelegate.h"

namespace
{

enum Column { COLUMN_NAME, COLUMN_NUMBER, COLUMN_COUNT };
const int SHOWN = 500; // whoever is behind them is found by the search

} // namespace

RecipientDialog::RecipientDialog(const QString& strPlugin, QWidget* pParent)
    : ExtendDialog(pParent, Qt::Dialog | Qt::WindowCloseButtonHint, WIDGET_TYPE_DIALOG),
      m_strPlugin(strPlugin),
      m_pSearch(new QLineEdit),
      m_pList(new QTreeWidget),
      m_pAdd(new QPushButton)
{
    name(this, "recipients");
    name(m_pSearch, "lineeditSearch");
    name(m_pList, "treeRecipients");
    name(m_pAdd, "buttonAdd");
    setWindowTitle(text("IDS_BY_NAME_TITLE"));
    m_pSearch->setPlaceholderText(text("IDS_SEARCH"));
    m_pSearch->setAccessibleName(text("IDS_SEARCH"));
    QtCompat::showClearButton(m_pSearch);
    m_pList->setColumnCount(COLUMN_COUNT);
    m_pList->setHeaderLabels(QStringList() << text("IDS_COLUMN_NAME") << text("IDS_COLUMN_NUMBER"));
    m_pList->setAccessibleName(text("IDS_BY_NAME_TITLE"));
    m_pList->setRootIsDecorated(false);
    m_pList->setUniformRowHeights(true);
    m_pList->setAlternatingRowColors(true);
    m_pList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_pList->setItemDelegateForColumn(COLUMN_NUMBER, new NumberDelegate(m_pList));
    m_pList->setColumnWidth(COLUMN_NAME, 220);
    m_pAdd->setText(text("IDS_ADD"));
    m_pAdd->setDefault(true);
    QPushButton* pClose = new QPushButton(text("IDS_CLOSE"));
    pClose->setAutoDefault(false);
    name(pClose, "buttonCloseRecipients");

    QWidget* pMain = new QWidget;
    QHBoxLayout* pFoot = new QHBoxLayout;
    pFoot->addStretch(1);
    pFoot->addWidget(m_pAdd);
    pFoot->addWidget(pClose);
    QVBoxLayout* pLayout = new QVBoxLayout(pMain);
    pLayout->addWidget(m_pSearch);
    pLayout->addWidget(m_pList, 1);
    pLayout->addLayout(pFoot);
    pMain->setMinimumSize(420, 380);
    AddMainWidget(pMain);

    connect(m_pSearch, SIGNAL(textChanged(QString)), this, SLOT(OnSearch()));
    connect(m_pList, SIGNAL(itemSelectionChanged()), this, SLOT(OnSelectionChanged()));
    connect(m_pList, SIGNAL(itemActivated(QTreeWidgetItem*, int)), this, SLOT(accept()));
    connect(m_pAdd, SIGNAL(clicked()), this, SLOT(accept()));
    connect(pClose, SIGNAL(clicked()), this, SLOT(reject()));
    HostContacts* pContacts = HostContacts::Instance();
    if (pContacts != nullptr) {
        connect(pContacts->Events(), SIGNAL(contactsRead()), this, SLOT(OnSearch()));
    }
    m_pSearch->setFocus();
    OnSearch();
}

QStringList RecipientDialog::Numbers() const
{
    QStringList lstNumbers;
    foreach (const QTreeWidgetItem* pItem, m_pList->selectedItems()) {
        lstNumbers << pItem->text(COLUMN_NUMBER);
    }
    return lstNumbers;
}

void RecipientDialog::OnSearch()
{
    HostContacts* pContacts = HostContacts::Instance();
    m_pList->clear();
    QList<QTreeWidgetItem*> listItems;
    if (pContacts != nullptr) {
        foreach (const HostContact& contact, pContacts->Complete(m_pSearch->text(), SHOWN)) {
            QTreeWidgetItem* pItem = new QTreeWidgetItem;
            pItem->setText(COLUMN_NAME, contact.strName);
            pItem->setText(COLUMN_NUMBER, contact.strNumber);
            listItems.append(pItem);
        }
    }
    m_pList->addTopLevelItems(listItems);
    // Return takes the first that was found.
    if (!listItems.isEmpty() && !m_pSearch->text().trimmed().isEmpty()) {
        m_pList->setCurrentItem(listItems.first());
    }
    OnSelectionChanged();
}

void RecipientDialog::OnSelectionChanged()
{
    m_pAdd->setEnabled(!m_pList->selectedItems().isEmpty());
}

QString RecipientDialog::text(const char* pszId) const
{
    return Change::tr(QLatin1String(pszId), m_strPlugin);
}

void RecipientDialog::name(QWidget* pWidget, const char* pszRole)
{
    pWidget->setObjectName(m_strPlugin + QLatin1Char('_') + QLatin1String(pszRole));
}
