#ifndef TESTS_GUI_GROUPS_GROUPSFIXTURE_H
#define TESTS_GUI_GROUPS_GROUPSFIXTURE_H

#include <QLineEdit>
#include <QLoggingCategory>

#include "../window/WindowFixture.h"

// The window with the stores that most tests use, its group editor, and a usage file of its own.
class GroupsFixture : public WindowFixture
{
public:
    GroupsFixture()
    {
        QLoggingCategory::setFilterRules("default.debug=false\ndefault.warning=false");
        fillStores();
        makeUsageFolder();
    }

    QLineEdit* editorOf(QTreeWidgetItem* node) const { return qobject_cast<QLineEdit*>(tree()->itemWidget(node, 0)); }
    QLineEdit* editor() const { return editorOf(in().editedGroup()); }

    // The menu entry "new group", up to the open editor.
    QLineEdit* startNew() const
    {
        treeAction("IDS_Add_GROUP")->trigger();
        return in().editedGroup() != nullptr ? editor() : nullptr;
    }

    QLineEdit* startRename(QTreeWidgetItem* node)
    {
        click(node);
        treeAction("IDS_EDIT_GROUP")->trigger();
        return in().editedGroup() != nullptr ? editor() : nullptr;
    }

    static void type(QLineEdit* editor, const QString& text, Qt::Key end = Qt::Key_Return)
    {
        editor->selectAll();
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClicks(editor, text);
        press(editor, end);
    }

    // Qt takes Return in with its next events, and Escape at once.
    static void press(QLineEdit* editor, Qt::Key key)
    {
        QTest::keyClick(editor, key);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }

    static QStringList storedNames()
    {
        QStringList names;
        for (const FakeSdk::Group& group : FakeSdk::groups())
            names << group.name;
        return names;
    }
    static bool writesToGroups()
    {
        return FakeSdk::count("AddGroup") + FakeSdk::count("UpdateGroup") + FakeSdk::count("DelGroup") > 0;
    }
};

#endif // TESTS_GUI_GROUPS_GROUPSFIXTURE_H
