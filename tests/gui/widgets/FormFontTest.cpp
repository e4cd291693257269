#include <QApplication>
#include <QFontInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QtTest>

#include "widgets/FormFont.h"

namespace
{
QFont ofPixels(int pixels)
{
    QFont font = QApplication::font();
    font.setPixelSize(pixels);
    return font;
}

int pixelsOf(const QWidget* widget)
{
    return QFontInfo(widget->font()).pixelSize();
}
} // namespace

// A form has a fixed size; the user's letters are as large as that allows.
class FormFontTest : public QObject
{
    Q_OBJECT

private slots:
    void lettersThatFitStay()
    {
        QWidget form;
        form.setFont(ofPixels(14));
        (new QVBoxLayout(&form))->addWidget(new QLabel("Name", &form));
        form.setFixedSize(400, 300);
        fitFontToForm(&form);
        QCOMPARE(pixelsOf(&form), 14);
    }

    // Ten lines in a window for five, also below a style sheet, where parts do not take over their parent's font.
    void lettersShrinkUntilTheFormFits_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::newRow("plain") << QString();
        QTest::newRow("style sheet") << "QLabel { color: red; }";
    }
    void lettersShrinkUntilTheFormFits()
    {
        QFETCH(QString, sheet);
        const QFont before = QApplication::font();
        QApplication::setFont(ofPixels(32));
        QWidget window;
        window.setStyleSheet(sheet);
        QWidget* form = new QWidget(&window);
        QVBoxLayout* layout = new QVBoxLayout(form);
        layout->setSpacing(0);
        for (int i = 0; i < 10; ++i)
            layout->addWidget(new QLabel("Name", form));
        window.setFixedSize(400, 200);
        fitFontToForm(form);
        QApplication::setFont(before);
        const QLabel* label = form->findChild<QLabel*>();
        QVERIFY2(pixelsOf(label) < 20, qPrintable(QString::number(pixelsOf(label))));
        // And no smaller than they must be.
        QVERIFY2(pixelsOf(label) >= 11, qPrintable(QString::number(pixelsOf(label))));
        QVERIFY(layout->totalMinimumSize().height() <= 200);
    }

    void aButtonOfAFixedSizeHoldsItsText()
    {
        QWidget form;
        form.setFont(ofPixels(32));
        QPushButton* button = new QPushButton("Abbrechen", &form);
        button->setFont(ofPixels(32));
        button->setMaximumSize(72, 22);
        form.setFixedSize(400, 300);
        fitFontToForm(&form);
        QVERIFY(QFontMetrics(button->font()).height() <= 22);
        QVERIFY(QFontMetrics(button->font()).boundingRect(button->text()).width() <= 72);
    }

    void titlesFitColumnsOfAFixedWidth()
    {
        QTableWidget table(1, 2);
        table.setHorizontalHeaderLabels({"Telephone", "E"});
        table.horizontalHeader()->setSortIndicatorShown(true);
        table.horizontalHeader()->setFont(ofPixels(40));
        table.setColumnWidth(0, 100);
        fitFontToColumns(table.horizontalHeader());
        const QFontMetrics metrics(table.horizontalHeader()->font());
        QVERIFY(metrics.boundingRect("Telephone").width() < 90);
        QVERIFY(metrics.boundingRect("Telephone").width() > 60);
    }
};

QTEST_MAIN(FormFontTest)
#include "FormFontTest.moc"
