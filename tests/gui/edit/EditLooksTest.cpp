#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "EditSupport.h"
#include "unit/core/FakeHost.h"

// The form in the real frame and with the real texts: everything inside the window, nothing cut, nothing on top of
// something else. With LINKHAND_SCREENSHOTS set to a folder the form is also saved there, one picture a memory.
class EditLooksTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        AddrBookLogic::Destroy();
        FakeSdk::reset();
        m_host.reset(new FakeHost);
        m_host->strLanguagesPath = qEnvironmentVariable("LINKHAND_BUILD_DIR") + "/languages";
    }
    void cleanup()
    {
        AddrBookLogic::Destroy();
        m_host.reset();
    }

    void theFormOfEachMemory_data()
    {
        QTest::addColumn<int>("memory");
        QTest::addColumn<QString>("picture");
        QTest::newRow("card") << 0 << "contact-card";
        QTest::newRow("device") << 1 << "contact-device";
        QTest::newRow("PC") << 4 << "contact-pc";
    }
    void theFormOfEachMemory()
    {
        QFETCH(int, memory);
        QFETCH(QString, picture);
        EditForm form(memory);
        form.dialog.SetWindowTitle("New contact");
        form.dialog.setRegEx();
        form.setText(0, "Ada Lovelace");
        form.setText(1, "+447700900123");
        if (memory == 4) {
            form.setText(4, "ada@example.org");
            form.setText(5, "Met at the exhibition.");
        }
        form.run([&] {
            QVERIFY(QTest::qWaitForWindowExposed(form.access.window()));
            const QString folder = qEnvironmentVariable("LINKHAND_SCREENSHOTS");
            if (!folder.isEmpty())
                QVERIFY(form.access.window()->grab().save(folder + "/" + picture + ".png"));
            checkLayout(form);
        });
    }

private:
    static QRect inWindow(const QWidget* widget, const QWidget* window)
    {
        return QRect(widget->mapTo(window, QPoint(0, 0)), widget->size());
    }

    static void checkLayout(EditForm& form)
    {
        QWidget* window = form.access.window();
        QList<QWidget*> widgets;
        for (QWidget* widget : form.access.content()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            QVERIFY2(window->rect().contains(inWindow(widget, window)), widget->metaObject()->className());
            for (const QWidget* other : widgets)
                QVERIFY(!inWindow(widget, window).intersects(inWindow(other, window)));
            QVERIFY2(widget->height() >= qMin(widget->minimumSizeHint().height(), widget->sizeHint().height()),
                     widget->metaObject()->className());
            widgets << widget;
        }
        QVERIFY(widgets.size() >= 6);

        // Captions are whole, inputs line up, and a caption stands level with its input.
        int left = -1;
        for (const QLabel* label : form.access.content()->findChildren<QLabel*>()) {
            QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
            QVERIFY(label->text() != label->buddy()->objectName());
            QVERIFY2(!label->text().startsWith("ID"), qPrintable(label->text()));
            const auto* edit = qobject_cast<QLineEdit*>(label->buddy());
            if (edit == nullptr)
                continue;
            QVERIFY(qAbs(edit->geometry().center().y() - label->geometry().center().y()) <= 1);
            QVERIFY(left == -1 || left == edit->x());
            left = edit->x();
        }
        QCOMPARE(form.access.ok()->height(), form.access.cancel()->height());
        QVERIFY(form.access.ok()->x() < form.access.cancel()->x());
        QVERIFY(form.access.ok()->isDefault());
    }

    QScopedPointer<FakeHost> m_host;
};

QTEST_MAIN(EditLooksTest)
#include "EditLooksTest.moc"
