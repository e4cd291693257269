#include <QLabel>
#include <QMessageBox>
#include <QPicture>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QtTest>

#include <functional>

#include "FakeHost.h"
#include "linkhand/core/CommonUtils.h"

class CoreMessageBox : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pHost.reset(new FakeHost); }
    void cleanup() { m_pHost.reset(); }

    void seamAnswersWithoutABox();
    void anAnswerWithoutAButtonAgreesToNothing_data();
    void anAnswerWithoutAButtonAgreesToNothing();
    void firstButtonIsOk();
    void cancelButtonIsCancel();
    void closedOrEscapedIsCancel_data();
    void closedOrEscapedIsCancel();
    void flagChoosesTheDefaultButton();
    void textsButtonsAndFlagsAreShown();
    void everyKindHasAPicture();
    void markUpIsText();
    void pointerHoldsTheOpenBox();
    void parentMayGoWhileTheBoxIsOpen();
    void withoutModalityItReturnsAtOnce();
    void withoutHostItStillShows();
    void linesOfALargeTextAreAsLongAsTheScreenLets();
    void lettersGetSmallerWhereLongLinesAreNotEnough();
    void buttonsWithoutRoomBesideOneAnotherStandBelow();

private:
    // Shows a box and runs `act` on it while it is open.
    int show(const std::function<void(QMessageBox*)>& act, const QString& strButton2 = "IDS_CANCEL", bool bFlag = true,
             QWidget* pParent = nullptr, QDialog** ppDialog = nullptr)
    {
        bool bActed = false;
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&]() {
            QMessageBox* pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (pBox == nullptr || !pBox->isVisible() || bActed)
                return;
            bActed = true;
            poll.stop();
            const QPointer<QMessageBox> pOpen(pBox);
            act(pBox);
            // A check that fails leaves before it closes the box.
            if (pOpen != nullptr && pOpen->isVisible())
                pOpen->close();
        });
        poll.start(0);
        const int iAnswer =
            CommonUtils::ShowMessage(QMessageBox::Question, pParent, "caption", "text", "IDS_OK", strButton2, "", bFlag,
                                     Qt::WindowCloseButtonHint, ppDialog, "", true);
        [&]() { QVERIFY(bActed); }();
        return iAnswer;
    }

    static QPushButton* button(QMessageBox* pBox, const QString& strText)
    {
        for (QPushButton* pButton : pBox->findChildren<QPushButton*>()) {
            if (pButton->text() == strText)
                return pButton;
        }
        return nullptr;
    }

    QScopedPointer<FakeHost> m_pHost;
};

void CoreMessageBox::seamAnswersWithoutABox()
{
    for (const int iAnswer : {int(QMessageBox::Ok), int(QMessageBox::Cancel)}) {
        m_pHost->iMessageAnswer = iAnswer;
        QCOMPARE(CommonUtils::ShowMessage(QMessageBox::Critical, nullptr, "caption", "text", "IDS_OK", "", "", true,
                                          Qt::WindowCloseButtonHint, nullptr, "", true),
                 iAnswer);
    }
    QCOMPARE(m_pHost->lstMessages, QStringList() << "caption: text"
                                                 << "caption: text");
}

void CoreMessageBox::anAnswerWithoutAButtonAgreesToNothing_data()
{
    QTest::addColumn<int>("icon");
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<int>("answer");
    const QString none;
    QTest::newRow("notice") << int(QMessageBox::Critical) << (QStringList() << "IDS_OK" << none << none) << 1024;
    QTest::newRow("no button named") << int(QMessageBox::Information) << (QStringList() << none << none << none)
                                     << 1024;
    QTest::newRow("question") << int(QMessageBox::Question)
                              << (QStringList() << "IDS_OK"
                                                << "IDS_CANCEL" << none)
                              << 4194304;
    QTest::newRow("notice with a way out") << int(QMessageBox::Critical)
                                           << (QStringList() << "IDS_OK"
                                                             << "IDS_CANCEL" << none)
                                           << 4194304;
    QTest::newRow("question with one button")
        << int(QMessageBox::Question) << (QStringList() << "IDS_OK" << none << none) << 4194304;
    QTest::newRow("only way out") << int(QMessageBox::Critical) << (QStringList() << "IDS_CANCEL" << none << none)
                                  << 4194304;
    QTest::newRow("several ways") << int(QMessageBox::Critical)
                                  << (QStringList() << "IDS_OK"
                                                    << "IDS_NO" << none)
                                  << 4194304;
}

void CoreMessageBox::anAnswerWithoutAButtonAgreesToNothing()
{
    QFETCH(int, icon);
    QFETCH(QStringList, buttons);
    QFETCH(int, answer);
    m_pHost->iMessageAnswer = QMessageBox::NoButton;
    const auto show = [&](bool bModal) {
        return CommonUtils::ShowMessage(QMessageBox::Icon(icon), nullptr, "caption", "text", buttons.at(0),
                                        buttons.at(1), buttons.at(2), true, Qt::WindowCloseButtonHint, nullptr, "",
                                        bModal);
    };
    QCOMPARE(show(true), answer);
    QCOMPARE(show(false), 0);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "nothing is shown");
}

void CoreMessageBox::firstButtonIsOk()
{
    QCOMPARE(show([](QMessageBox* pBox) { QTest::mouseClick(button(pBox, "OK"), Qt::LeftButton); }), 1024);
    QCOMPARE(show([](QMessageBox* pBox) { QTest::mouseClick(button(pBox, "OK"), Qt::LeftButton); }, ""), 1024);
    QCOMPARE(show([](QMessageBox* pBox) { QTest::keyClick(pBox, Qt::Key_Return); }), 1024);
}

void CoreMessageBox::cancelButtonIsCancel()
{
    QCOMPARE(show([](QMessageBox* pBox) { QTest::mouseClick(button(pBox, "Cancel"), Qt::LeftButton); }), 4194304);
}

void CoreMessageBox::closedOrEscapedIsCancel_data()
{
    QTest::addColumn<QString>("secondButton");
    QTest::newRow("one button") << "";
    QTest::newRow("two buttons") << "IDS_CANCEL";
}

void CoreMessageBox::closedOrEscapedIsCancel()
{
    QFETCH(QString, secondButton);
    QCOMPARE(show([](QMessageBox* pBox) { pBox->close(); }, secondButton), int(QMessageBox::Cancel));
    QCOMPARE(show([](QMessageBox* pBox) { QTest::keyClick(pBox, Qt::Key_Escape); }, secondButton),
             int(QMessageBox::Cancel));
}

void CoreMessageBox::flagChoosesTheDefaultButton()
{
    QString strDefault;
    const auto look = [&](QMessageBox* pBox) {
        strDefault = pBox->defaultButton()->text();
        pBox->close();
    };
    show(look, "IDS_CANCEL", true);
    QCOMPARE(strDefault, QString("OK"));
    show(look, "IDS_CANCEL", false);
    QCOMPARE(strDefault, QString("Cancel"));
    show(look, "", false);
    QCOMPARE(strDefault, QString("OK"));
}

void CoreMessageBox::textsButtonsAndFlagsAreShown()
{
    show([](QMessageBox* pBox) {
        QCOMPARE(pBox->windowTitle(), QString("caption"));
        QCOMPARE(pBox->text(), QString("text"));
        QCOMPARE(pBox->icon(), QMessageBox::Question);
        QCOMPARE(pBox->findChildren<QPushButton*>().size(), 2);
        QVERIFY(pBox->windowFlags() & Qt::WindowCloseButtonHint);
        QVERIFY(pBox->isModal());
        pBox->close();
    });
}

void CoreMessageBox::everyKindHasAPicture()
{
    for (const QMessageBox::Icon enIcon :
         {QMessageBox::Information, QMessageBox::Warning, QMessageBox::Critical, QMessageBox::Question}) {
        QWidget parent;
        QDialog* pDialog = nullptr;
        CommonUtils::ShowMessage(enIcon, &parent, "caption", "text", "IDS_OK", "", "", true, Qt::WindowCloseButtonHint,
                                 &pDialog, "", false);
        const QMessageBox* pBox = qobject_cast<QMessageBox*>(pDialog);
        QCOMPARE(pBox->icon(), enIcon);
        const QLabel* pPicture = pBox->findChild<QLabel*>("qt_msgboxex_icon_label");
        QVERIFY(pPicture != nullptr && pPicture->isVisible());
        QVERIFY(!pPicture->picture(Qt::ReturnByValue).isNull() || !pPicture->pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(pPicture->width() >= 32);
    }
}

void CoreMessageBox::markUpIsText()
{
    QCOMPARE(show([](QMessageBox* pBox) {
                 QCOMPARE(pBox->textFormat(), Qt::PlainText);
                 pBox->close();
             }),
             int(QMessageBox::Cancel));
}

void CoreMessageBox::pointerHoldsTheOpenBox()
{
    QDialog* pDialog = nullptr;
    show(
        [&](QMessageBox* pBox) {
            QCOMPARE(pDialog, static_cast<QDialog*>(pBox));
            pBox->close();
        },
        "", true, nullptr, &pDialog);
    QVERIFY(pDialog == nullptr);
}

void CoreMessageBox::parentMayGoWhileTheBoxIsOpen()
{
    QWidget* pParent = new QWidget;
    QCOMPARE(show([&](QMessageBox*) { delete pParent; }, "IDS_CANCEL", true, pParent), int(QMessageBox::Cancel));
}

void CoreMessageBox::withoutModalityItReturnsAtOnce()
{
    QWidget parent;
    QDialog* pDialog = nullptr;
    QCOMPARE(CommonUtils::ShowMessage(QMessageBox::Information, &parent, "caption", "text", "IDS_OK", "", "", true,
                                      Qt::WindowCloseButtonHint, &pDialog, "more", false),
             0);
    QPointer<QMessageBox> pBox = qobject_cast<QMessageBox*>(pDialog);
    QVERIFY(!pBox.isNull());
    QVERIFY(pBox->isVisible());
    QVERIFY(!pBox->isModal());
    QCOMPARE(pBox->informativeText(), QString("more"));
    pBox->close();
    QTRY_VERIFY(pBox.isNull());
    QVERIFY2(pDialog == nullptr, "the pointer does not outlive its box");
}

void CoreMessageBox::withoutHostItStillShows()
{
    m_pHost.reset();
    QCOMPARE(show([](QMessageBox* pBox) { QTest::keyClick(pBox, Qt::Key_Return); }), int(QMessageBox::Ok));
}

namespace
{

// Letters for people who see badly, while there is one of these.
class LargeLetters
{
public:
    LargeLetters() : m_before(QApplication::font())
    {
        QFont large = m_before;
        large.setPointSize(24);
        QApplication::setFont(large);
    }
    ~LargeLetters() { QApplication::setFont(m_before); }

private:
    const QFont m_before;
};

// The box is deleted later, and holds the pointer until then.
bool close(QDialog*& pDialog)
{
    pDialog->close();
    return QTest::qWaitFor([&] { return pDialog == nullptr; });
}

QSize screenSize()
{
    return QGuiApplication::primaryScreen()->availableGeometry().size();
}

} // namespace

void CoreMessageBox::linesOfALargeTextAreAsLongAsTheScreenLets()
{
    const LargeLetters letters;
    QDialog* pDialog = nullptr;
    CommonUtils::ShowMessage(QMessageBox::Question, nullptr, "caption", QString("word ").repeated(80), "IDS_OK", "", "",
                             true, Qt::WindowCloseButtonHint, &pDialog, "", false);
    QVERIFY(pDialog != nullptr);
    QTRY_VERIFY(pDialog->height() < screenSize().height());
    QVERIFY(pDialog->width() <= screenSize().width());
    const QLabel* pText = pDialog->findChild<QLabel*>("qt_msgbox_label");
    QTRY_VERIFY(pText->height() >= pText->heightForWidth(pText->width()));
    QCOMPARE(pText->font().pointSizeF(), 24.0);
    QVERIFY(close(pDialog));

    // A short one is as it ever was.
    CommonUtils::ShowMessage(QMessageBox::Question, nullptr, "caption", "text", "IDS_OK", "", "", true,
                             Qt::WindowCloseButtonHint, &pDialog, "", false);
    QVERIFY(pDialog->width() < screenSize().width() / 2);
    QVERIFY(close(pDialog));
}

void CoreMessageBox::lettersGetSmallerWhereLongLinesAreNotEnough()
{
    const LargeLetters letters;
    QDialog* pDialog = nullptr;
    CommonUtils::ShowMessage(QMessageBox::Question, nullptr, "caption", QString("word ").repeated(150), "IDS_OK", "",
                             "", true, Qt::WindowCloseButtonHint, &pDialog, "", false);
    QVERIFY(pDialog != nullptr);
    QTRY_VERIFY(pDialog->height() < screenSize().height());
    const QLabel* pText = pDialog->findChild<QLabel*>("qt_msgbox_label");
    QVERIFY(pText->font().pointSizeF() < 24);
    QVERIFY(pText->font().pointSizeF() > 9); // no smaller than it must be
    QTRY_VERIFY(pText->height() >= pText->heightForWidth(pText->width()));
    QVERIFY(close(pDialog));
}

void CoreMessageBox::buttonsWithoutRoomBesideOneAnotherStandBelow()
{
    const LargeLetters letters;
    QDialog* pDialog = nullptr;
    CommonUtils::ShowMessage(QMessageBox::Question, nullptr, "caption", "text", "IDS_OF_THE_FIRST_ONE",
                             "IDS_OF_THE_SECOND", "IDS_OF_THE_THIRD_ONE", true, Qt::WindowCloseButtonHint, &pDialog, "",
                             false);
    QVERIFY(pDialog != nullptr);
    const QList<QPushButton*> lstButtons = pDialog->findChildren<QPushButton*>();
    QCOMPARE(lstButtons.size(), 3);
    foreach (const QPushButton* pButton, lstButtons) {
        QTRY_VERIFY(pButton->width() >= pButton->minimumSizeHint().width());
        QTRY_VERIFY(pDialog->rect().contains(QRect(pButton->mapTo(pDialog, QPoint()), pButton->size())));
    }
    QVERIFY(lstButtons.at(0)->y() != lstButtons.at(1)->y());
    QVERIFY(pDialog->width() <= screenSize().width());
    QVERIFY(close(pDialog));
}

QTEST_MAIN(CoreMessageBox)
#include "core_messagebox.moc"
