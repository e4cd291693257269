#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "../support/LooksTest.h"
#include "EditSupport.h"

// The form in the real frame and with the real texts: everything inside the window, nothing cut, nothing on top of
// something else. One picture a memory.
class EditLooksTest : public LooksTest
{
    Q_OBJECT

private slots:
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
            save(form.access.window(), picture);
            checkLayout(form);
        });
    }

private:
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
};

QTEST_MAIN(EditLooksTest)
#include "EditLooksTest.moc"
