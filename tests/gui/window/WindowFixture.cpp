#include "WindowFixture.h"

#include <QButtonGroup>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTreeWidgetItemIterator>

#include "linkhand/QtCompat.h"

namespace
{
const char* const s_szConfig = R"(<?xml version="1.0" encoding="UTF-8"?>
<config>
  <toolbar subgroups="false">
    <toolitem id="9000" tip="IDS_PMBTN_ADD" icon="a.png" search="false"/>
    <toolitem id="9001" tip="IDS_EDIT_LINKMAN" icon="a.png" search="false"/>
    <toolitem id="9002" tip="IDS_PMBTN_DELETE" icon="a.png" search="false"/>
    <toolitem id="9003" tip="IDS_PMBTN_CALL" icon="a.png" search="false"/>
    <toolitem id="9005" tip="IDS_PMMENU_SEND" icon="a.png" search="false"/>
    <toolitem id="9007" tip="IDS_PMBTN_IMPORT_FROM_MOE" icon="a.png" search="false"/>
    <toolitem id="9008" tip="IDS_PMBTN_IMPORT_FROM_MOO" icon="a.png" search="false"/>
    <toolitem id="9006" tip="IDS_PMTOOLBAR_SEARCH" icon="a.png" search="true"/>
  </toolbar>
  <menu name="Table" type="POPUP" parent="listview">
    <item id="IDS_PMMENU_SEND" type="POPUP" name="Send"/>
    <item id="IDS_PMMENU_CALL" type="ITEM"/>
    <item id="IDS_PMMENU_VIDEO_CALL" type="ITEM"/>
    <item id="IDS_PMMENU_ADD" type="ITEM"/>
    <item id="IDS_PMMENU_DETAIL" type="ITEM"/>
    <item id="IDS_PMMENU_REMFRGRP" type="ITEM"/>
    <item id="IDS_PMMENU_DELETE" type="ITEM"/>
    <item id="IDS_IMPORT_PHONEBOOK" type="ITEM"/>
    <item id="IDS_PMMENU_IMPORT_FROM_MOE" type="ITEM"/>
    <item id="IDS_PMMENU_IMPORT_FROM_MOO" type="ITEM"/>
    <item id="IDS_EXPORT_PHONEBOOKSEL" type="ITEM"/>
    <item id="IDS_EXPORT_PHONEBOOK" type="ITEM"/>
  </menu>
  <menu name="Send" type="POPUP" parent="listview">
    <item id="IDS_PMMENU_SEND_MSG" type="ITEM"/>
    <item id="IDS_PMMENU_SEND_MMS" type="ITEM"/>
  </menu>
  <menu name="Tree" type="POPUP" parent="tree">
    <item id="IDS_Add_GROUP" type="ITEM"/>
    <item id="IDS_EDIT_GROUP" type="ITEM"/>
    <item id="IDS_DEL_GROUP" type="ITEM"/>
    <item id="IDS_SEND_MSG" type="ITEM"/>
    <item id="IDS_SEND_MMS" type="ITEM"/>
    <item id="IDS_PMMENU_CALL" type="ITEM"/>
  </menu>
</config>
)";

void writeStrip(const QString& path)
{
    QImage strip(7 * 16, 16, QImage::Format_RGB32);
    QPainter painter(&strip);
    for (int frame = 0; frame < 7; ++frame) {
        painter.fillRect(frame * 16, 0, 8, 16, Qt::white);
        painter.fillRect(frame * 16 + 8, 0, 8, 16, QColor(30 * (frame + 1), 0, 0));
    }
    painter.end();
    QVERIFY(strip.save(path, "PNG"));
}
} // namespace

WindowFixture::WindowFixture()
{
    // Thousands of lines a test, otherwise.
    QtCompat::setDebugEnabled(false);
    FakeCore::reset();
    FakeSdk::reset();
    QDir(m_folder.path()).mkpath("plugins/AddrBookUIPlugin");
    writeStrip(m_folder.path() + "/plugins/AddrBookUIPlugin/addr_tre_images");
    writeConfig(shippedConfig());
    FakeCore::setPluginLibraryPath(m_folder.path());
}

WindowFixture::~WindowFixture()
{
    destroy();
}

QByteArray WindowFixture::shippedConfig()
{
    return s_szConfig;
}

QString WindowFixture::configFile() const
{
    return m_folder.path() + "/plugins/AddrBookUIPlugin/Config.xml";
}

void WindowFixture::writeConfig(const QByteArray& xml) const
{
    QFile file(configFile());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(xml), qint64(xml.size()));
}

void WindowFixture::fillStores()
{
    const int anna = FakeSdk::addRecord(4, {"Anna", "111", "222", "333", "anna@example.org", "first\nsecond"});
    const int bert = FakeSdk::addRecord(4, {"Bert", "444"});
    FakeSdk::addRecord(4, {"Carl", "555", "", "", "", "<b>bold</b>"});
    const int friends = FakeSdk::addGroup("Friends");
    FakeSdk::join(friends, anna);
    FakeSdk::join(friends, bert);
    FakeSdk::addRecord(0, {"Dora", "666"});
    FakeSdk::addRecord(1, {"Emil", "777"});
    FakeSdk::addRecord(1, {"Frida", "888"});
}

void WindowFixture::build()
{
    m_window = std::make_unique<AddrBookDlg>();
    m_window->InitWindow(nullptr);
    m_window->setObjectName("AddrBookUIPlugin_MainWidget");
    m_window->InitTree();
    m_window->resize(900, 600);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_window->activateWindow();
    QVERIFY(waitRead());
}

void WindowFixture::destroy()
{
    if (!m_window)
        return;
    AddrBookLogic::unSDKRegisterEvent();
    m_window.reset();
}

QTreeWidgetItem* WindowFixture::node(const QString& text) const
{
    for (QTreeWidgetItemIterator it(tree()); *it != nullptr; ++it) {
        if ((*it)->text(0).startsWith(text))
            return *it;
    }
    return nullptr;
}

void WindowFixture::click(QTreeWidgetItem* node)
{
    QVERIFY(node != nullptr);
    tree()->setCurrentItem(node);
    QMetaObject::invokeMethod(tree(), "itemClicked", Q_ARG(QTreeWidgetItem*, node), Q_ARG(int, 0));
    QVERIFY(waitRead());
}

// A table sorts from the end of its read on.
bool WindowFixture::waitRead() const
{
    return QTest::qWaitFor([this] { return in().reader() == nullptr || table()->isSortingEnabled(); }, 20000);
}

bool WindowFixture::waitDone() const
{
    return QTest::qWaitFor([this] { return !in().threadBusy() && !in().worker().isRunning(); }, 20000) && waitRead();
}

ABWaitingDlg* WindowFixture::waiting()
{
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* dialog = qobject_cast<ABWaitingDlg*>(widget);
        if (dialog != nullptr && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

QAbstractButton* WindowFixture::cancelButton()
{
    return waiting() != nullptr ? waiting()->findChild<QAbstractButton*>() : nullptr;
}

void WindowFixture::makeUsageFolder() const
{
    QDir(folder()).mkpath("OnlineUpdate");
    FakeSdk::setLogDirectory(folder() + "/log/");
}

QStringList WindowFixture::column(int column) const
{
    QStringList texts;
    for (int row = 0; row < table()->rowCount(); ++row)
        texts << (table()->item(row, column) != nullptr ? table()->item(row, column)->text() : QString("-"));
    return texts;
}

int WindowFixture::rowOf(const QString& name) const
{
    return column(0).indexOf(name);
}

void WindowFixture::selectRows(const QList<int>& rows) const
{
    QItemSelection selection;
    for (int row : rows) {
        selection.select(table()->model()->index(row, 0), table()->model()->index(row, table()->columnCount() - 1));
    }
    if (!rows.isEmpty())
        table()->selectionModel()->setCurrentIndex(table()->model()->index(rows.last(), 0),
                                                   QItemSelectionModel::NoUpdate);
    table()->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QAbstractButton* WindowFixture::button(int id) const
{
    for (const ToolItem& item : in().toolItems()) {
        if (item.iId == id)
            return item.pButton;
    }
    return nullptr;
}

QAction* WindowFixture::tableAction(const QString& id) const
{
    return window()->getAction(id, in().tableActions());
}

QAction* WindowFixture::treeAction(const QString& id) const
{
    return window()->getAction(id, in().treeActions());
}

QString WindowFixture::previewText() const
{
    return in().preview()->toPlainText();
}

void WindowTest::init()
{
    QApplication::setQuitOnLastWindowClosed(false);
}

void WindowTest::cleanup()
{
    QCOMPARE(FakeSdk::leaks(), QString());
    QCOMPARE(FakeCore::runningWorkers(), 0);
    QCOMPARE(FakeCore::dialogs().size(), 0);
    for (const QWidget* widget : QApplication::topLevelWidgets())
        QVERIFY(qobject_cast<const ABWaitingDlg*>(widget) == nullptr);
}
