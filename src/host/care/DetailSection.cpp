#include "care/DetailSection.h"

#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "care/CareTable.h"
#include "care/CareText.h"
#include "care/KeptDialog.h"
#include "linkhand/QtCompat.h"
#include "orva/orva_sdk.h"
#include "shared/NumberDelegate.h"
#include "shared/WrapLayout.h"
#include "text/HostText.h"

namespace
{

const int PHOTO_SIZE = 120;

} // namespace

DetailSection::DetailSection(CareRunner& runner, QWidget* pParent)
    : CareSection(runner, "linkhand_Care_details", pParent),
      m_pHint(new QLabel(this)),
      m_pSearchLabel(new QLabel(this)),
      m_pSearch(new QLineEdit(this)),
      m_pContacts(new CareTable("linkhand_Care_details_contacts", 2, this)),
      m_pProperties(new CareTable("linkhand_Care_details_list", 2, this)),
      m_pPhoto(new QLabel(this)),
      m_pEdit(new QPushButton(this)),
      m_pAdd(new QPushButton(this)),
      m_pRemove(new QPushButton(this)),
      m_iShown(0)
{
    m_pHint->setObjectName(QLatin1String("linkhand_Care_details_hint"));
    m_pHint->setWordWrap(true);
    m_pSearch->setObjectName(QLatin1String("linkhand_Care_details_search"));
    m_pSearchLabel->setBuddy(m_pSearch);
    QtCompat::showClearButton(m_pSearch);
    m_pPhoto->setObjectName(QLatin1String("linkhand_Care_details_photo"));
    m_pEdit->setObjectName(QLatin1String("linkhand_Care_details_edit"));
    m_pAdd->setObjectName(QLatin1String("linkhand_Care_details_add"));
    m_pRemove->setObjectName(QLatin1String("linkhand_Care_details_remove"));
    m_pContacts->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pContacts->setItemDelegateForColumn(1, new NumberDelegate(m_pContacts));
    m_pProperties->setSelectionMode(QAbstractItemView::SingleSelection);
    lay();
    connect(m_pSearch, SIGNAL(textChanged(QString)), m_pContacts, SLOT(SetSearch(QString)));
    connect(m_pContacts, SIGNAL(chosen()), this, SLOT(OnContactChosen()));
    connect(m_pProperties, SIGNAL(chosen()), this, SLOT(OnPropertyChosen()));
    connect(m_pProperties, SIGNAL(activated(QModelIndex)), this, SLOT(OnEdit()));
    connect(m_pEdit, SIGNAL(clicked()), this, SLOT(OnEdit()));
    connect(m_pAdd, SIGNAL(clicked()), this, SLOT(OnAdd()));
    connect(m_pRemove, SIGNAL(clicked()), this, SLOT(OnRemove()));
    OnPropertyChosen();
}

void DetailSection::lay()
{
    WrapLayout* pBar = new WrapLayout;
    pBar->addWidget(m_pSearchLabel);
    pBar->addWidget(m_pSearch);
    pBar->addWidget(m_pAdd);
    pBar->addWidget(m_pEdit);
    pBar->addWidget(m_pRemove);
    QWidget* pRight = new QWidget;
    QVBoxLayout* pRightLayout = new QVBoxLayout(pRight);
    pRightLayout->setContentsMargins(0, 0, 0, 0);
    pRightLayout->addWidget(m_pProperties, 1);
    pRightLayout->addWidget(m_pPhoto);
    QSplitter* pSplitter = new QSplitter(Qt::Horizontal, this);
    pSplitter->setObjectName(QLatin1String("linkhand_Care_details_splitter"));
    pSplitter->addWidget(m_pContacts);
    pSplitter->addWidget(pRight);
    pSplitter->setStretchFactor(0, 2);
    pSplitter->setStretchFactor(1, 3);
    QVBoxLayout* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pHint);
    pLayout->addLayout(pBar);
    pLayout->addWidget(pSplitter, 1);
    setTabOrder(m_pSearch, m_pContacts);
    setTabOrder(m_pContacts, m_pProperties);
    setTabOrder(m_pProperties, m_pAdd);
    setTabOrder(m_pAdd, m_pEdit);
    setTabOrder(m_pEdit, m_pRemove);
}

QString DetailSection::Title() const
{
    return HostText::Get("IDS_HOST_CARE_DETAILS");
}

void DetailSection::Retranslate()
{
    m_pHint->setText(HostText::Get("IDS_HOST_CARE_DETAILS_HINT"));
    m_pSearchLabel->setText(HostText::Get("IDS_HOST_CARE_SEARCH"));
    m_pSearch->setAccessibleName(HostText::Get("IDS_HOST_CARE_SEARCH"));
    m_pAdd->setText(HostText::Get("IDS_HOST_CARE_KEPT_ADD_DOTS"));
    m_pEdit->setText(HostText::Get("IDS_HOST_CARE_KEPT_EDIT_DOTS"));
    m_pRemove->setText(HostText::Get("IDS_HOST_CARE_KEPT_REMOVE"));
    m_pContacts->setAccessibleName(HostText::Get("IDS_HOST_CARE_COLUMN_CONTACTS"));
    m_pContacts->SetTitles(QStringList() << HostText::Get("IDS_HOST_FIELD_NAME")
                                         << HostText::Get("IDS_HOST_CARE_COLUMN_NUMBER"));
    m_pContacts->SizeColumns(QStringList(QString(20, QLatin1Char('n'))));
    m_pContacts->SetEmptyText(HostText::Get("IDS_HOST_CARE_BIN_NONE"));
    m_pProperties->setAccessibleName(Title());
    m_pProperties->SetTitles(QStringList() << HostText::Get("IDS_HOST_CARE_COLUMN_FIELD")
                                           << HostText::Get("IDS_HOST_CARE_COLUMN_VALUE"));
    m_pProperties->SizeColumns(QStringList(QString(16, QLatin1Char('n'))));
    m_pProperties->SetEmptyText(HostText::Get("IDS_HOST_CARE_DETAILS_NONE"));
    m_pPhoto->setAccessibleName(HostText::Get("IDS_HOST_CARE_KEPT_PHOTO"));
    showContacts();
    showProperties();
}

void DetailSection::Read()
{
    begin(new ContactReading);
}

void DetailSection::Take(const CareTask& task)
{
    if (const ContactReading* pContacts = dynamic_cast<const ContactReading*>(&task)) {
        m_listContacts = pContacts->Contacts();
        m_pContacts->SetFilled();
        showContacts();
    } else if (const KeptReading* pKept = dynamic_cast<const KeptReading*>(&task)) {
        if (pKept->Id() == chosenContact()) {
            m_iShown = pKept->Id();
            m_listProperties = pKept->Properties();
            m_pProperties->SetFilled();
            showProperties();
        }
    } else if (task.Code() == ORVA_OK) {
        emit told(HostText::Get("IDS_HOST_CARE_KEPT_STORED"));
    }
    if (task.Code() != ORVA_OK) {
        emit told(CareText::Explain(task.Code()));
    }
}

QWidget* DetailSection::FocusTarget()
{
    return m_pProperties;
}

void DetailSection::OnContactChosen()
{
    if (chosenContact() != m_iShown) {
        m_iShown = 0;
        m_listProperties.clear();
        showProperties();
    }
    enable(m_pAdd, chosenContact() != 0);
    // Not while the rows are being changed.
    QMetaObject::invokeMethod(this, "OnRead", Qt::QueuedConnection);
}

void DetailSection::OnRead()
{
    if (chosenContact() != 0) {
        begin(new KeptReading(chosenContact()));
    }
}

void DetailSection::OnPropertyChosen()
{
    const int iProperty = chosenProperty();
    enable(m_pEdit, iProperty >= 0 && !m_listProperties.at(iProperty).bOctets);
    enable(m_pRemove, iProperty >= 0);
    showPhoto(iProperty);
}

void DetailSection::OnEdit()
{
    const int iProperty = chosenProperty();
    if (iProperty >= 0 && !m_listProperties.at(iProperty).bOctets) {
        edit(m_listProperties.at(iProperty), iProperty);
    }
}

void DetailSection::OnAdd()
{
    if (chosenContact() != 0) {
        edit(KeptProperty(), -1);
    }
}

void DetailSection::OnRemove()
{
    const int iProperty = chosenProperty();
    if (iProperty >= 0) {
        begin(new KeptChange(m_iShown, iProperty, m_listProperties.at(iProperty).strHead, QString()));
    }
}

int DetailSection::chosenContact() const
{
    const QList<int> listIds = m_pContacts->SelectedIds();
    return listIds.isEmpty() ? 0 : listIds.first();
}

int DetailSection::chosenProperty() const
{
    const QList<int> listIds = m_pProperties->SelectedIds();
    const int iAt = listIds.isEmpty() ? -1 : listIds.first() - 1;
    return iAt < m_listProperties.size() ? iAt : -1;
}

void DetailSection::showContacts()
{
    QList<CareRow> listRows;
    foreach (const NamedContact& contact, m_listContacts) {
        listRows.append(CareRow(contact.iId, QStringList() << contact.strName << contact.strNumber));
    }
    m_pContacts->SetRows(listRows);
}

void DetailSection::showProperties()
{
    QList<CareRow> listRows;
    for (int i = 0; i < m_listProperties.size(); ++i) {
        listRows.append(CareRow(i + 1, QStringList() << KeptText::Title(m_listProperties.at(i).strHead)
                                                     << CareText::Number(KeptText::Value(m_listProperties.at(i)))));
    }
    m_pProperties->SetRows(listRows);
}

void DetailSection::showPhoto(int iProperty)
{
    QPixmap pixmap;
    if (iProperty >= 0 && m_listProperties.at(iProperty).bOctets) {
        pixmap.loadFromData(QByteArray::fromBase64(m_listProperties.at(iProperty).strValue.toLatin1()));
    }
    m_pPhoto->setVisible(!pixmap.isNull());
    m_pPhoto->setPixmap(pixmap.isNull()
                            ? pixmap
                            : pixmap.scaled(PHOTO_SIZE, PHOTO_SIZE, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

// What is emptied is taken away.
void DetailSection::edit(const KeptProperty& property, int iIndex)
{
    const int iContact = chosenContact();
    KeptDialog dialog(property, window());
    if (dialog.exec() == QDialog::Accepted && (iIndex >= 0 || !dialog.Value().isEmpty())) {
        begin(new KeptChange(iContact, iIndex, dialog.Head(), dialog.Value()));
    }
}
