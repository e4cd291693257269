// The yardstick for the start of the program and for its memory: a bare window with the same kinds of widgets, filled
// from the store's file by a plain SQLite loop, sorted once and shown once.
//
//   bare_window FILE MARKS [--cells]
//
// writes "rows" to the pipe when the last row is on the screen. With --cells each cell also has what the phonebook's
// cells have: an alignment, no editing, and a block on the heap that says which record it shows.

#include <QApplication>
#include <QBasicTimer>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTimerEvent>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <sqlite3.h>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace
{

const int FIELDS = 6;

struct RowBlock {
    int iMemory;
    int iRecord;
    int iGroup;
};

class Table : public QTableWidget
{
public:
    explicit Table(const QString& strMarks) : QTableWidget(0, FIELDS), m_strMarks(strMarks)
    {
        setHorizontalHeaderLabels(QStringList() << "Name"
                                                << "Mobile"
                                                << "Office"
                                                << "Home"
                                                << "E-mail"
                                                << "Notes");
        verticalHeader()->hide();
        verticalHeader()->setMinimumSectionSize(16);
        verticalHeader()->setDefaultSectionSize(16);
        setSelectionBehavior(SelectRows);
        setShowGrid(false);
    }

    bool Fill(const char* pszFile, bool bCells)
    {
        sqlite3* pDatabase = nullptr;
        sqlite3_stmt* pRows = nullptr;
        if (sqlite3_open_v2(pszFile, &pDatabase, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK ||
            sqlite3_exec(pDatabase, "BEGIN", nullptr, nullptr, nullptr) != SQLITE_OK) {
            return false;
        }
        sqlite3_prepare_v2(pDatabase, "SELECT count(*) FROM records", -1, &pRows, nullptr);
        setRowCount(sqlite3_step(pRows) == SQLITE_ROW ? sqlite3_column_int(pRows, 0) : 0);
        sqlite3_finalize(pRows);
        sqlite3_prepare_v2(pDatabase,
                           "SELECT name, mobile, office_phone, home_phone, email, remark, id FROM records ORDER BY id",
                           -1, &pRows, nullptr);
        int iRow = 0;
        for (; sqlite3_step(pRows) == SQLITE_ROW; ++iRow) {
            for (int iColumn = 0; iColumn < FIELDS; ++iColumn) {
                setItem(iRow, iColumn, cell(pRows, iColumn, bCells));
            }
        }
        sqlite3_finalize(pRows);
        sqlite3_close(pDatabase);
        setSortingEnabled(true);
        sortItems(0);
        return iRow == rowCount();
    }

protected:
    void paintEvent(QPaintEvent* pEvent) override
    {
        QTableWidget::paintEvent(pEvent);
        // Behind what the window system is told of this painting.
        if (!m_strMarks.isEmpty() && !m_painted.isActive()) {
            m_painted.start(0, this);
        }
    }

    void timerEvent(QTimerEvent* pEvent) override
    {
        if (pEvent->timerId() != m_painted.timerId()) {
            QTableWidget::timerEvent(pEvent);
            return;
        }
        m_painted.stop();
        QFile file(m_strMarks);
        if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            file.write("rows\n");
        }
        m_strMarks.clear();
    }

private:
    static QTableWidgetItem* cell(sqlite3_stmt* pRow, int iColumn, bool bCells)
    {
        const QChar* const pText = static_cast<const QChar*>(sqlite3_column_text16(pRow, iColumn));
        QTableWidgetItem* const pItem = new QTableWidgetItem(QString(pText, sqlite3_column_bytes16(pRow, iColumn) / 2));
        if (bCells) {
            RowBlock* const pBlock = new RowBlock{4, sqlite3_column_int(pRow, FIELDS), 0};
            pItem->setTextAlignment(Qt::AlignLeft | Qt::AlignBottom);
            pItem->setFlags(pItem->flags() & ~Qt::ItemIsEditable);
            pItem->setData(Qt::UserRole, static_cast<qlonglong>(reinterpret_cast<quintptr>(pBlock)));
        }
        return pItem;
    }

    QString m_strMarks;
    QBasicTimer m_painted;
};

// Seven buttons for pages, a tree, nine tools and a search box, the table, a preview and a line for the state.
void lay(QWidget& window, Table* pTable)
{
    QVBoxLayout* const pOuter = new QVBoxLayout(&window);
    QHBoxLayout* const pPages = new QHBoxLayout;
    for (int i = 0; i < 7; ++i) {
        QToolButton* const pButton = new QToolButton;
        pButton->setText(QString::fromLatin1("Page %1").arg(i));
        pPages->addWidget(pButton);
    }
    QHBoxLayout* const pTools = new QHBoxLayout;
    for (int i = 0; i < 9; ++i) {
        pTools->addWidget(new QPushButton(window.style()->standardIcon(QStyle::SP_FileIcon), QString()));
    }
    pTools->addWidget(new QLineEdit);
    QTreeWidget* const pTree = new QTreeWidget;
    pTree->addTopLevelItem(new QTreeWidgetItem(QStringList(QLatin1String("Contacts"))));
    QSplitter* const pPreview = new QSplitter(Qt::Vertical);
    pPreview->addWidget(pTable);
    pPreview->addWidget(new QTextBrowser);
    QWidget* const pRight = new QWidget;
    QVBoxLayout* const pRightLayout = new QVBoxLayout(pRight);
    pRightLayout->addLayout(pTools);
    pRightLayout->addWidget(pPreview);
    QSplitter* const pMain = new QSplitter;
    pMain->addWidget(pTree);
    pMain->addWidget(pRight);
    pOuter->addLayout(pPages);
    pOuter->addWidget(pMain);
    pOuter->addWidget(new QLabel(QLatin1String("No device")));
    window.resize(1000, 700);
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGTERM, [](int) { _exit(0); });
    QApplication application(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "bare_window FILE MARKS [--cells]\n");
        return 2;
    }
    Table* const pTable = new Table(QFile::decodeName(argv[2]));
    QWidget window;
    lay(window, pTable);
    if (!pTable->Fill(argv[1], argc > 3 && std::strcmp(argv[3], "--cells") == 0)) {
        std::fprintf(stderr, "%s is not read\n", argv[1]);
        return 2;
    }
    window.show();
    return QApplication::exec();
}
