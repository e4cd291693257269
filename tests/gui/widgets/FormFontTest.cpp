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

    void aButtonIsAsNarrowAndAsLowAsItWasMade()
    {
        for (const QSize& most : {QSize(72, QWIDGETSIZE_MAX), QSize(QWIDGETSIZE_MAX, 20)}) {
            QWidget form;
            QPushButton* button = new QPushButton("Abbrechen", &form);
            button->setFont(ofPixels(32));
            button->setMaximumSize(most);
            form.setFixedSize(400, 300);
            form.setFont(ofPixels(32));
            fitFontToForm(&form);
            QVERIFY(QFontMetrics(button->font()).boundingRect(button->text()).width() <= most.width());
            QVERIFY(QFontMetrics(button->font()).height() <= most.height());
        }
    }

    void aLabelIsAsLowAsItWasMade()
    {
        QWidget form;
        form.setFont(ofPixels(32));
        QLabel* label = new QLabel("Name", &form);
        label->setMaximumHeight(20);
        form.setFixedSize(400, 300);
        fitFontToForm(&form);
        QVERIFY(QFontMetrics(label->font()).height() <= 20);
    }

    void linesThatBreakCountAsHighAsTheyAre()
    {
        QWidget form;
        form.setFont(ofPixels(32));
        QLabel* label = new QLabel("A text that needs some lines where it has little room beside itself", &form);
        label->setWordWrap(true);
        (new QVBoxLayout(&form))->addWidget(label);
        form.setFixedSize(300, 100);
        fitFontToForm(&form);
        QVERIFY(form.layout()->minimumHeightForWidth(300) <= 100);
    }

    void aLineFitsTheWidth()
    {
        QWidget form;
        form.setFont(ofPixels(32));
        (new QVBoxLayout(&form))->addWidget(new QLabel("A text in a line of its own", &form));
        form.setFixedSize(250, 300);
        fitFontToForm(&form);
        QVERIFY(form.layout()->totalMinimumSize().width() <= 250);
    }

    // Rows within rows, in a window with a margin, that nobody has seen yet.
    void lettersAreNoSmallerThanTheyMustBe()
    {
        QWidget window;
        QWidget* form = new QWidget(&window);
        QVBoxLayout* frame = new QVBoxLayout(&window);
        frame->setContentsMargins(30, 30, 30, 30);
        frame->addWidget(form);
        form->setFont(ofPixels(32));
        QVBoxLayout* layout = new QVBoxLayout(form);
        QVBoxLayout* rows = new QVBoxLayout;
        layout->addLayout(rows);
        layout->setContentsMargins(0, 0, 0, 0);
        rows->setSpacing(0);
        for (int i = 0; i < 10; ++i)
            rows->addWidget(new QLabel("Name", form));
        window.setFixedSize(400, 260);
        fitFontToForm(form);
        QVERIFY(layout->totalMinimumSize().height() <= 200);
        QVERIFY2(pixelsOf(form) >= 11, qPrintable(QString::number(pixelsOf(form))));
    }

    void smallerLettersStay()
    {
        QWidget form;
        form.setFont(ofPixels(32));
        QLabel* small = new QLabel("Name", &form);
        small->setFont(ofPixels(12));
        QLabel* large = new QLabel("Name", &form);
        large->setMaximumHeight(30);
        form.setFixedSize(400, 300);
        fitFontToForm(&form);
        QVERIFY(pixelsOf(large) > 12 && pixelsOf(large) < 32);
        QCOMPARE(pixelsOf(small), 12);
    }

    void lettersStayLegible()
    {
        QWidget form;
        form.setFont(ofPixels(14));
        (new QLabel("Name", &form))->setMaximumHeight(1);
        form.setFixedSize(400, 300);
        fitFontToForm(&form);
        QCOMPARE(pixelsOf(&form), 8);
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
        // Without the mark of the order there is more room.
        QTableWidget unsorted(1, 2);
        unsorted.setHorizontalHeaderLabels({"Telephone", "E"});
        unsorted.horizontalHeader()->setSortIndicatorShown(false);
        unsorted.horizontalHeader()->setFont(ofPixels(40));
        unsorted.setColumnWidth(0, 100);
        fitFontToColumns(unsorted.horizontalHeader());
        QVERIFY(pixelsOf(unsorted.horizontalHeader()) > pixelsOf(table.horizontalHeader()));
    }

    void titlesFitTheColumnsOfAForm()
    {
        QWidget form;
        form.setFont(ofPixels(24));
        QTableWidget* table = new QTableWidget(2, 1, &form);
        table->setHorizontalHeaderLabels({"Telephone"});
        table->horizontalHeader()->setFont(ofPixels(24));
        table->setColumnWidth(0, 100);
        form.setFixedSize(400, 300);
        fitFontToForm(&form);
        QVERIFY(QFontMetrics(table->horizontalHeader()->font()).boundingRect("Telephone").width() <= 90);
        // The numbers of the rows have no titles.
        QVERIFY2(pixelsOf(&form) >= 12, qPrintable(QString::number(pixelsOf(&form))));
    }
};

QTEST_MAIN(FormFontTest)
#include "FormFontTest.moc"
