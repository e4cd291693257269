#ifndef TESTS_GUI_WINDOW_WINDOWFIXTURE_H
#define TESTS_GUI_WINDOW_WINDOWFIXTURE_H

#include <QAbstractButton>
#include <QFile>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QtTest>

#include <memory>

#include "dialogs/AddrBookWaitingDlg.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"
#include "logic/AddrBookLogic.h"
#include "logic/ItemData.h"
#include "widgets/AddrBookTableWidget.h"
#include "widgets/PBTreeWidget.h"
#include "window/AddrBookDlg.h"
#include "window/ToolItemIds.h"

// The members that a test may look at.
struct AddrBookDlgAccess {
    AddrBookDlg* d;

    AddrBookThread* reader() const { return d->m_pthreadRead; }
    AddrBookThread& worker() const { return d->m_threadWorker; }
    AddrBookBatch& batch() const { return d->m_batch; }
    PBTreeWidget* tree() const { return d->m_ptreePhonebook; }
    AddrBookTableWidget* table() const { return d->m_ptableContacts; }
    AddrBookTableWidget* retiredTable() const { return d->m_ptableContactsOld; }
    QTextBrowser* preview() const { return d->m_plabelPreview; }
    SearchLineEdit* searchBox() const { return d->m_plineeditSearch; }
    QTreeWidgetItem* local() const { return d->m_pitemLocalTreeWidgetItem; }
    QTreeWidgetItem* sim() const { return d->m_pitemSimTreeWidgetItem; }
    QTreeWidgetItem* device() const { return d->m_pitemDeviceTreeWidgetItem; }
    QTreeWidgetItem*& current() const { return d->m_pitemCurrentTreeWidgetItem; }
    QTreeWidgetItem*& entered() const { return d->m_pitemEnteredTreeWidgetItem; }
    QTreeWidgetItem*& editedGroup() const { return d->m_pitemEditedGroup; }
    QTreeWidgetItem*& groupParent() const { return d->m_pitemGroupParent; }
    QMenu* tableMenu() const { return d->m_pmenuTable; }
    QMenu* treeMenu() const { return d->m_pmenuTree; }
    QMenu* sendMenu() const { return d->m_pmenuSend; }
    QList<MENU::QActionInfo> tableActions() const { return d->m_listTableActions; }
    QList<MENU::QActionInfo> treeActions() const { return d->m_listTreeActions; }
    QList<ToolItem> toolItems() const { return d->m_listToolItems; }
    QList<AddrBookRecord>& notifyRecords() const { return d->m_listNotifyRecords; }
    QList<int> columnWidths() const { return d->m_listColumnWidths; }
    QString searchText() const { return d->m_strSearchText; }
    QPointer<AddrBookWaitingDlg>& waitingDialog() const { return d->m_pdlgWaiting; }
    _ORVA_EN_PHONEBOOK_MEMORY& memory() const { return d->m_enMemory; }
    int& group() const { return d->m_iGroupId; }
    AddrBookRecord& record() const { return d->m_recordCurrent; }
    _ORVA_EN_PHONEBOOK_MEMORY& dropMemory() const { return d->m_enDragTargetMemory; }
    _ORVA_EN_PHONEBOOK_MEMORY& dragSource() const { return d->m_enDragSourceMemory; }
    _ADDRBOOK_OPERATION_TYPE operation() const { return d->m_enOperation; }
    _ADDRBOOK_OPERATION_TYPE readMode() const { return d->m_enReadMode; }
    bool& threadBusy() const { return d->m_bThreadBusy; }
    bool& subGroups() const { return d->m_bSubGroupSupported; }
    bool radioOff() const { return d->m_bRFOff; }
    bool netConnected() const { return d->m_bNetConnected; }
    bool newContactEnabled() const { return d->m_bNewContactEnabled; }
    bool previewEmpty() const { return d->m_bPreviewEmpty; }
    bool rightToLeft() const { return d->m_bRightToLeft; }
    bool statePending() const { return d->m_bStateSavePending; }
    bool searchShown() const { return d->m_bSearchBoxShown; }
    int sortSection() const { return d->m_iSortSection; }
    int simUsed() const { return d->m_iSimUsedCount; }
    int localTotal() const { return d->m_iLocalTotalCount; }
    int localUsed() const { return d->m_iLocalUsedCount; }

    // Groups, copies, files.
    QString oldGroupName() const { return d->m_strOldGroupName; }
    bool& newGroupPending() const { return d->m_bNewGroupPending; }
    bool& closingEditor() const { return d->m_bClosingEditor; }
    _ORVA_EN_PHONEBOOK_MEMORY& dragTarget() const { return d->m_enDragTargetMemory; }
    int totalRows() const { return d->m_iTotalRowCount; }
    bool& outlookUsable() const { return d->m_bOutlookUsable; }
    void setOperation(_ADDRBOOK_OPERATION_TYPE operation) const { d->m_enOperation = operation; }

    void setTreeColumnWidth(QTreeWidgetItem* node) const { d->setTreeColumnWidth(node); }
    void setCorrectTreeWidth() const { d->setCorrectTreeWidth(); }
    void icon(const QString& path, int frame, QIcon& into) const { d->getImageIconFromFile(path, frame, into); }
    void updateTable(const QString& text) const { d->updateTable(text); }
    QMenu* makeSendMenu() const { return d->getSendMenu(); }
};

// The window on the scripted SDK and host library, with a plug-in folder of its own: Config.xml as it is shipped and a
// picture strip whose frames tell themselves by colour, white on their left half.
class WindowFixture
{
public:
    WindowFixture();
    ~WindowFixture();

    // Builds the window as the service does, shows it, and waits for the first read.
    void build();
    void destroy();

    // The scripted contents that most tests use: three contacts, of which two are in the group "Friends"; one record
    // on the card, two in the device.
    static void fillStores();

    AddrBookDlg* window() const { return m_window.get(); }
    AddrBookDlgAccess in() const { return AddrBookDlgAccess{m_window.get()}; }
    PBTreeWidget* tree() const { return in().tree(); }
    AddrBookTableWidget* table() const { return in().table(); }

    // The node whose text begins so; null if there is none.
    QTreeWidgetItem* node(const QString& text) const;

    // A user's click on a node, up to the table's complete read.
    void click(QTreeWidgetItem* node);
    bool waitRead() const;

    // Up to a batch's end and the read that follows it.
    bool waitDone() const;

    // The waiting dialog on the screen, and the button in it; null for none.
    static ABWaitingDlg* waiting();
    static QAbstractButton* cancelButton();

    // Texts of a column, top to bottom.
    QStringList column(int column) const;
    int rowOf(const QString& name) const;
    void selectRows(const QList<int>& rows) const;

    QAbstractButton* button(int id) const;
    QAction* tableAction(const QString& id) const;
    QAction* treeAction(const QString& id) const;
    QString previewText() const;

    QString folder() const { return m_folder.path(); }
    QString configFile() const;
    void writeConfig(const QByteArray& xml) const;
    static QByteArray shippedConfig();

    bool usageReported() const { return QFile::exists(usageFile()); }
    void forgetUsage() const { QFile::remove(usageFile()); }
    QString usageFile() const { return folder() + "/OnlineUpdate/UpdateInfo/kpi-pb.dat"; }

protected:
    // A place for the usage file, which is written only where there is one.
    void makeUsageFolder() const;

private:
    QTemporaryDir m_folder;
    std::unique_ptr<AddrBookDlg> m_window;
};

// A test that builds windows: each of its functions ends without a handle, a list or a text of the SDK, a worker or a
// dialog left over.
class WindowTest : public QObject
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();
};

#endif // TESTS_GUI_WINDOW_WINDOWFIXTURE_H
