#ifndef TESTS_GUI_SELECT_SELECTSUPPORT_H
#define TESTS_GUI_SELECT_SELECTSUPPORT_H

#include <QDeadlineTimer>
#include <QPointer>
#include <QScopedPointer>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

#include "../support/DialogTest.h"
#include "dialogs/AddrBookSelectContactsDlg.h"
#include "logic/PointerCarrier.h"

// What the tests see of the dialog's inside.
struct AddrBookSelectContactsDlgAccess {
    typedef AddrBookSelectContactsDlg Dlg;
    explicit AddrBookSelectContactsDlgAccess(Dlg& dialog) : d(dialog) {}

    QTreeWidget* tree() { return d.m_ptreeContacts; }
    ExtendDialog* window() { return d.m_pExtendDialog; }
    QWidget* content() { return d.m_pMainWidget; }
    QPushButton* ok() { return d.m_pbuttonOK; }
    QPushButton* cancel() { return d.m_pbuttonCancel; }
    QVBoxLayout* left() { return d.m_pvlayoutLeft; }
    QHBoxLayout* main() { return d.m_phlayoutMain; }
    QHBoxLayout* buttons() { return d.m_phlayoutButtons; }
    QTreeWidgetItem* localNode() { return d.m_pitemLocalTreeWidgetItem; }
    QTreeWidgetItem* simNode() { return d.m_pitemSimTreeWidgetItem; }
    QTreeWidgetItem* deviceNode() { return d.m_pitemDeviceTreeWidgetItem; }
    bool simEnabled() const { return d.m_bSimEnabled; }
    QList<QString>& chosen() { return d.m_lstSelectedNumbers; }
    int pending() const { return d.m_iPendingReads; }
    bool filled() const { return d.m_lstThreads.isEmpty(); }
    int threads() const { return d.m_lstThreads.size(); }
    AddrBookThread* simThread() { return d.m_pthreadSim; }
    AddrBookThread* deviceThread() { return d.m_pthreadDevice; }
    AddrBookThread* groupsThread() { return d.m_pthreadGroups; }
    AddrBookThread* contactsThread() { return d.m_pthreadContacts; }
    QTreeWidgetItem* newNode(const AddrBookRecord& record, int memory)
    {
        return d.AddRecordNodes(record, static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(memory));
    }
    static Dlg::LeafNodeData* leaf(const QTreeWidgetItem* item) { return Dlg::leafData(item); }
    QList<int> contactsInIndex(int memory, int group)
    {
        SC_Hash_Group_Node* entry = d.groupEntry(static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(memory), group);
        QList<int> ids = entry != nullptr ? entry->phashContacts->keys() : QList<int>();
        std::sort(ids.begin(), ids.end());
        return ids;
    }
    bool inIndex(int memory, int group)
    {
        return d.groupEntry(static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(memory), group) != nullptr;
    }
    QString numberType() const { return d.m_strNumberType; }

    // The pane beside the tree, which the dialog itself never builds.
    void buildPane()
    {
        d.m_ptableSelected = new QTableWidget(d.m_pMainWidget);
        d.m_plabelTotal = new QLabel(d.m_pMainWidget);
        d.m_pcomboNumberType = new QComboBox(d.m_pMainWidget);
        d.m_pbuttonAdd = new QPushButton(d.m_pMainWidget);
        d.m_pbuttonRemove = new QPushButton(d.m_pMainWidget);
        d.m_pvlayoutMiddleButtons = new QVBoxLayout;
        d.m_pvlayoutRight = new QVBoxLayout;
        d.setObjectNames();
    }
    QTableWidget* table() { return d.m_ptableSelected; }
    QLabel* total() { return d.m_plabelTotal; }
    QComboBox* combo() { return d.m_pcomboNumberType; }

    Dlg& d;
};

// A dialog as the window opens it. Deleted with this object unless taken.
class Picker
{
public:
    explicit Picker(bool multi = true, const QStringList& preset = QStringList())
        : dialog(new AddrBookSelectContactsDlg), access(*dialog)
    {
        dialog->InitDlg(nullptr, AddrBookLogic::Instance(), multi, FIELD_TYPE_DEFAULT, preset);
    }

    // False if the tree is not complete within five seconds.
    bool waitFilled()
    {
        return QTest::qWaitFor([this] { return access.filled(); }, 5000);
    }

    // The tree as lines, indented by level: "Name(1)", " Ada", "  Label 111". With marks, a "*" stands before what
    // is ticked.
    QStringList lines(bool marks = false) const
    {
        QStringList list;
        addLines(access_().tree()->invisibleRootItem(), -1, marks, list);
        return list;
    }

    // A node by its texts from the top, each compared up to a "(".
    QTreeWidgetItem* item(const QStringList& path) const
    {
        QTreeWidgetItem* found = access_().tree()->invisibleRootItem();
        for (const QString& text : path) {
            QTreeWidgetItem* next = nullptr;
            for (int i = 0; i < found->childCount() && next == nullptr; ++i) {
                if (found->child(i)->text(0).section('(', 0, 0) == text)
                    next = found->child(i);
            }
            if (next == nullptr)
                return nullptr;
            found = next;
        }
        return found;
    }

    // A click on a check box, and one on a text.
    void toggle(QTreeWidgetItem* node)
    {
        node->setCheckState(0, node->checkState(0) == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
        dialog->OnTreeClicked(node);
    }
    void clickText(QTreeWidgetItem* node) { dialog->OnTreeClicked(node); }
    static bool ticked(const QTreeWidgetItem* node) { return node->checkState(0) == Qt::Checked; }

    QStringList chosen() { return access.chosen(); }

    // The result after OK.
    QStringList result(const QStringList& before = QStringList())
    {
        dialog->OnOKButtonClicked();
        QList<QString> numbers = before;
        dialog->GetRecords(numbers);
        return numbers;
    }

    // Runs the window; the user acts once the condition holds. A window that the user leaves open, such as one who
    // failed half way, is closed, and so is one whose condition never holds.
    void run(const std::function<bool()>& when, const std::function<void()>& user)
    {
        const QPointer<QWidget> window(access.window());
        const QDeadlineTimer deadline(60000);
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            const bool isDue = when();
            if (!isDue && !deadline.hasExpired())
                return;
            timer.stop();
            if (isDue)
                user();
            else
                QTest::qFail("the moment for the user never came", __FILE__, __LINE__);
            if (!window.isNull() && window->isVisible())
                window->close();
        });
        timer.start(0);
        dialog->Exec();
    }

    std::unique_ptr<AddrBookSelectContactsDlg> dialog;
    AddrBookSelectContactsDlgAccess access;

private:
    AddrBookSelectContactsDlgAccess access_() const { return AddrBookSelectContactsDlgAccess(*dialog); }

    static void addLines(const QTreeWidgetItem* item, int level, bool marks, QStringList& list)
    {
        if (level >= 0) {
            const QString mark = marks && item->checkState(0) == Qt::Checked ? "*" : "";
            list << QString(level, ' ') + mark + item->text(0);
        }
        for (int i = 0; i < item->childCount(); ++i)
            addLines(item->child(i), level + 1, marks, list);
    }
};

// Short texts for the tree, and a phonebook without a device; what a test needs it adds.
class SelectTest : public DialogTest
{
    Q_OBJECT

protected:
    // Emits a signal of the logic, as the SDK's events do.
    static void signalLogic(const char* name) { QVERIFY(QMetaObject::invokeMethod(AddrBookLogic::Instance(), name)); }
    static void signalLogic(const char* name, bool value)
    {
        QVERIFY(QMetaObject::invokeMethod(AddrBookLogic::Instance(), name, Q_ARG(bool, value)));
    }

protected slots:
    void init()
    {
        DialogTest::init();
        FakeSdk::setDevicePresent(false);
        FakeCore::setText("IDS_LOCAL_PHONEBOOKUI", "PC");
        FakeCore::setText("IDS_SIM", "Card");
        FakeCore::setText("IDS_NV", "Device");
        FakeCore::setText("ID_STR_MOBILE_PHONE", "m");
        FakeCore::setText("ID_STR_BUSINESS_PHONE", "o");
        FakeCore::setText("ID_STR_HOME_PHONE", "h");
    }
};

#endif // TESTS_GUI_SELECT_SELECTSUPPORT_H
