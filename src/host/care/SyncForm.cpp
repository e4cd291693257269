#include "care/SyncForm.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "text/HostText.h"

namespace
{

enum Kind { KIND_SERVER, KIND_FOLDER };
enum Source { SOURCE_KEYRING, SOURCE_COMMAND };
enum RowNumber { ROW_KIND, ROW_URL, ROW_USER, ROW_SOURCE, ROW_SECRET, ROW_FOLDER };

} // namespace

SyncForm::SyncForm(QWidget* pParent)
    : QWidget(pParent),
      m_pKind(new QComboBox(this)),
      m_pUrl(new QLineEdit(this)),
      m_pUser(new QLineEdit(this)),
      m_pSource(new QComboBox(this)),
      m_pSecret(new QLineEdit(this)),
      m_pFolder(new QLineEdit(this)),
      m_pChoose(new QPushButton(this)),
      m_bTouched(false)
{
    m_pKind->setObjectName(QLatin1String("linkhand_Care_sync_kind"));
    m_pUrl->setObjectName(QLatin1String("linkhand_Care_sync_url"));
    m_pUser->setObjectName(QLatin1String("linkhand_Care_sync_user"));
    m_pSource->setObjectName(QLatin1String("linkhand_Care_sync_source"));
    m_pSecret->setObjectName(QLatin1String("linkhand_Care_sync_secret"));
    m_pFolder->setObjectName(QLatin1String("linkhand_Care_sync_folder"));
    m_pChoose->setObjectName(QLatin1String("linkhand_Care_sync_choose"));
    m_pUrl->setPlaceholderText(QLatin1String("https://"));
    m_pKind->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_pSource->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (int i = 0; i < 2; ++i) {
        m_pKind->addItem(QString());
        m_pSource->addItem(QString());
    }

    QGridLayout* pLayout = new QGridLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setColumnStretch(1, 1);
    addRow(pLayout, "IDS_HOST_CARE_SYNC_WITH", m_pKind);
    addRow(pLayout, "IDS_HOST_CARE_SYNC_URL", m_pUrl);
    addRow(pLayout, "IDS_HOST_CARE_SYNC_USER", m_pUser);
    addRow(pLayout, "IDS_HOST_CARE_SYNC_PASSWORD", m_pSource);
    addRow(pLayout, "IDS_HOST_CARE_SYNC_SECRET", m_pSecret);
    addRow(pLayout, "IDS_HOST_CARE_SYNC_FOLDER", m_pFolder);
    pLayout->addWidget(m_pChoose, ROW_FOLDER, 2);
    foreach (QLineEdit* pEdit, QList<QLineEdit*>() << m_pUrl << m_pUser << m_pSecret << m_pFolder) {
        connect(pEdit, SIGNAL(textEdited(QString)), this, SLOT(OnTouched()));
    }
    connect(m_pKind, SIGNAL(activated(int)), this, SLOT(OnTouched()));
    connect(m_pSource, SIGNAL(activated(int)), this, SLOT(OnTouched()));
    connect(m_pKind, SIGNAL(currentIndexChanged(int)), this, SLOT(OnKind()));
    connect(m_pSource, SIGNAL(currentIndexChanged(int)), this, SLOT(OnKind()));
    connect(m_pChoose, SIGNAL(clicked()), this, SLOT(OnChooseFolder()));
    OnKind();
}

void SyncForm::addRow(QGridLayout* pLayout, const char* pszTextId, QWidget* pField)
{
    const Row row = {new QLabel(this), pField, pszTextId};
    row.pLabel->setBuddy(pField);
    const int iRow = int(m_listRows.size());
    pLayout->addWidget(row.pLabel, iRow, 0);
    pLayout->addWidget(pField, iRow, 1);
    m_listRows.append(row);
}

void SyncForm::Retranslate()
{
    foreach (const Row& row, m_listRows) {
        row.pLabel->setText(HostText::Get(row.pszTextId));
        row.pField->setAccessibleName(row.pLabel->text());
    }
    m_pKind->setItemText(KIND_SERVER, HostText::Get("IDS_HOST_CARE_SYNC_WITH_SERVER"));
    m_pKind->setItemText(KIND_FOLDER, HostText::Get("IDS_HOST_CARE_SYNC_WITH_FOLDER"));
    m_pSource->setItemText(SOURCE_KEYRING, HostText::Get("IDS_HOST_CARE_SYNC_KEYRING"));
    m_pSource->setItemText(SOURCE_COMMAND, HostText::Get("IDS_HOST_CARE_SYNC_COMMAND"));
    // Qt keeps the least width of the texts before.
    m_pKind->setMinimumWidth(m_pKind->sizeHint().width());
    m_pSource->setMinimumWidth(m_pSource->sizeHint().width());
    m_pChoose->setText(HostText::Get("IDS_HOST_CARE_SYNC_CHOOSE_DOTS"));
    OnKind();
}

void SyncForm::Show(const SyncSetup& setup)
{
    if (m_bTouched || !setup.bSetUp) {
        return;
    }
    m_pKind->setCurrentIndex(setup.bFolder ? KIND_FOLDER : KIND_SERVER);
    m_pFolder->setText(setup.bFolder ? QDir::toNativeSeparators(setup.strFolder) : QString());
    m_pUrl->setText(setup.strUrl);
    m_pUser->setText(setup.strUser);
    m_pSource->setCurrentIndex(setup.strCommand.isEmpty() ? SOURCE_KEYRING : SOURCE_COMMAND);
    m_pSecret->setText(setup.strCommand);
    emit changed();
}

void SyncForm::SetUntouched()
{
    m_bTouched = false;
    // No password stays on the screen, or in memory for longer than it is needed.
    if (m_pSource->currentIndex() == SOURCE_KEYRING) {
        m_pSecret->clear();
    }
}

SyncSetup SyncForm::Entered() const
{
    SyncSetup setup;
    setup.bFolder = m_pKind->currentIndex() == KIND_FOLDER;
    setup.strFolder = QDir::fromNativeSeparators(m_pFolder->text().trimmed());
    setup.strUrl = m_pUrl->text().trimmed();
    setup.strUser = m_pUser->text().trimmed();
    if (m_pSource->currentIndex() == SOURCE_COMMAND) {
        setup.strCommand = m_pSecret->text().trimmed();
    } else {
        setup.strPassword = m_pSecret->text();
    }
    return setup;
}

bool SyncForm::IsComplete() const
{
    const SyncSetup setup = Entered();
    if (setup.bFolder) {
        return QDir::isAbsolutePath(setup.strFolder);
    }
    return !setup.strUrl.isEmpty() && !setup.strUser.isEmpty() &&
           (m_pSource->currentIndex() == SOURCE_KEYRING || !setup.strCommand.isEmpty());
}

QWidget* SyncForm::First()
{
    return m_pKind;
}

void SyncForm::OnTouched()
{
    m_bTouched = true;
    emit changed();
}

void SyncForm::OnKind()
{
    const bool bFolder = m_pKind->currentIndex() == KIND_FOLDER;
    const bool bKeyring = m_pSource->currentIndex() == SOURCE_KEYRING;
    for (int iRow = ROW_URL; iRow <= ROW_SECRET; ++iRow) {
        setRowVisible(iRow, !bFolder);
    }
    setRowVisible(ROW_FOLDER, bFolder);
    m_pChoose->setVisible(bFolder);
    // A word from one place must not show in the other.
    const QLineEdit::EchoMode enEcho = bKeyring ? QLineEdit::Password : QLineEdit::Normal;
    if (m_pSecret->echoMode() != enEcho) {
        m_pSecret->clear();
        m_pSecret->setEchoMode(enEcho);
    }
    m_pSecret->setPlaceholderText(bKeyring ? HostText::Get("IDS_HOST_CARE_SYNC_SECRET_THERE") : QString());
    emit changed();
}

void SyncForm::OnChooseFolder()
{
    const QString strFolder =
        QFileDialog::getExistingDirectory(window(), HostText::Get("IDS_HOST_CARE_SYNC_WITH_FOLDER"), m_pFolder->text());
    if (!strFolder.isEmpty()) {
        m_pFolder->setText(QDir::toNativeSeparators(strFolder));
        OnTouched();
    }
}

void SyncForm::setRowVisible(int iRow, bool bVisible)
{
    m_listRows.at(iRow).pLabel->setVisible(bVisible);
    m_listRows.at(iRow).pField->setVisible(bVisible);
}
