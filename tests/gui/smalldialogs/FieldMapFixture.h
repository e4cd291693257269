#ifndef TESTS_GUI_SMALLDIALOGS_FIELDMAPFIXTURE_H
#define TESTS_GUI_SMALLDIALOGS_FIELDMAPFIXTURE_H

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

#include "dialogs/AddrBookFieldMapDlg.h"
#include "fakecore/FakeCore.h"
#include "fakesdk/FakeSdk.h"
#include "logic/AddrBookLogic.h"
#include "logic/AddrBookUICommon.h"

// The field map dialog over the scripted SDK and host library.
class FieldMapFixture : public QObject
{
protected:
    void setUp()
    {
        FakeCore::reset();
        FakeSdk::reset();
        FakeCore::setText("ID_STR_NAME", "Name");
        FakeCore::setText("ID_STR_MOBILE_PHONE", "Mobile phone");
        FakeCore::setText("ID_STR_BUSINESS_PHONE", "Business phone");
        FakeCore::setText("ID_STR_HOME_PHONE", "Home phone");
        FakeCore::setText("ID_STR_EMAIL", "E-mail");
        FakeCore::setText("ID_STR_NOTES", "Notes");
        parent = std::make_unique<QWidget>();
        map = std::make_unique<AddrBookFieldMapDlg>();
    }

    void tearDown()
    {
        map.reset();
        QCOMPARE(FakeCore::dialogs().size(), 0);
        parent.reset();
        AddrBookLogic::Destroy();
        QCOMPARE(FakeSdk::leaks(), QString());
    }

    void fill(const QStringList& titles, _ORVA_EN_PHONEBOOK_MEMORY memory = PB_MEM_LOCAL)
    {
        map->InitDialog(parent.get(), memory, "contacts.csv");
        map->SetRowCount(1, 11);
        map->SetRowCount(2, 11);
        map->SetRowHeight(1, 15);
        map->SetRowHeight(2, 15);
        map->SetFirstTableInfo(titles);
        map->SetSecondTableInfo(titles, memory);
    }
    void open()
    {
        dialog()->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    }
    // Runs the dialog modally; the function is the user. One who leaves it open, such as by a failed check, cancels.
    int run(const std::function<void()>& user)
    {
        const QPointer<QDialog> window(dialog());
        QTimer::singleShot(0, this, [user, window] {
            user();
            if (!window.isNull() && window->isVisible())
                window->reject();
        });
        return map->Exec();
    }

    ExtendDialog* dialog() const { return FakeCore::dialogs().value(0); }
    FieldMapTable1Widget* left() const { return dialog()->findChild<FieldMapTable1Widget*>(); }
    FieldMapTable2Widget* right() const { return dialog()->findChild<FieldMapTable2Widget*>(); }
    QPushButton* ok() const { return dialog()->findChild<QPushButton*>("AddrUIplugin_FieldMapokbtn"); }
    QPushButton* cancel() const { return dialog()->findChild<QPushButton*>("AddrUIplugin_FieldMapCancelbtn"); }
    QStringList mapped() const
    {
        QStringList texts;
        for (int row = 0; row < right()->rowCount(); ++row)
            texts << right()->item(row, 1)->text();
        return texts;
    }

    static QPoint cell(const QTableWidget* table, int row, int column)
    {
        return table->visualRect(table->model()->index(row, column)).center();
    }
    static void mouse(QTableWidget* table, QEvent::Type type, QPoint point, Qt::MouseButton button,
                      Qt::MouseButtons held)
    {
        QMouseEvent event(type, point, table->viewport()->mapToGlobal(point), button, held, Qt::NoModifier);
        QApplication::sendEvent(table->viewport(), &event);
    }
    void pressTitle(int row)
    {
        mouse(left(), QEvent::MouseButtonPress, cell(left(), row, 0), Qt::LeftButton, Qt::LeftButton);
        mouse(left(), QEvent::MouseButtonRelease, cell(left(), row, 0), Qt::LeftButton, Qt::NoButton);
    }
    // What a real drag of a text brings to the right table. True if it was let in.
    bool dropText(const QString& text, int row)
    {
        QMimeData data;
        data.setText(text);
        const QPoint point = cell(right(), row, 1);
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(point, actions, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(right()->viewport(), &enter);
        if (!enter.isAccepted())
            return false;
        QDragMoveEvent move(point, actions, &data, Qt::LeftButton, Qt::NoModifier);
        move.ignore();
        QApplication::sendEvent(right()->viewport(), &move);
        if (!move.isAccepted())
            return false;
        QDropEvent drop(point, actions, &data, Qt::NoButton, Qt::NoModifier);
        drop.ignore();
        QApplication::sendEvent(right()->viewport(), &drop);
        return drop.isAccepted();
    }
    void moveOver(int row, int column = 1)
    {
        mouse(right(), QEvent::MouseMove, cell(right(), row, column), Qt::NoButton, Qt::NoButton);
    }

    std::unique_ptr<QWidget> parent;
    std::unique_ptr<AddrBookFieldMapDlg> map;
};

#endif // TESTS_GUI_SMALLDIALOGS_FIELDMAPFIXTURE_H
