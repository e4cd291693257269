#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeWidget>

#include "TextFit.h"
#include "WindowFixture.h"
#include "device/HardwareChoice.h"

// What is shown of a real modem, in each language: every text has its room.
class TestModemLooks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_pBus.reset(new TestBus);
        QVERIFY(HardwareChoice::Begin("auto"));
    }
    void theFormGrowsWithWhatItSays_data() { languages(); }
    void theFormGrowsWithWhatItSays();
    void theOpenFormFollowsTheLanguage();
    void timeAndStateOfAMessageAreReadable_data() { languages(); }
    void timeAndStateOfAMessageAreReadable();
    void thePanelReadsInItsDirection_data() { languages(); }
    void thePanelReadsInItsDirection();
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }

private:
    static void languages();
    static void speak(WindowFixture& f);
    static QStringList cut(QWidget* pWidget);

    // Whatever the form says, by the name of what says it.
    static QMap<QString, QString> texts(PinForm* pForm)
    {
        QMap<QString, QString> texts;
        texts["title"] = pForm->windowTitle();
        texts["name of the field"] = pForm->findChild<QLineEdit*>()->accessibleName();
        foreach (QLabel* pLabel, pForm->findChildren<QLabel*>()) {
            texts["label " + pLabel->objectName()] = pLabel->text();
        }
        foreach (QAbstractButton* pButton, pForm->findChildren<QAbstractButton*>()) {
            texts[pButton->objectName()] = pButton->text();
        }
        return texts;
    }

    QScopedPointer<TestBus> m_pBus;
};

void TestModemLooks::languages()
{
    QTest::addColumn<QString>("language");
    for (const char* pszLanguage : {"en", "de", "ar", "zh_CN"}) {
        QTest::newRow(pszLanguage) << QString(pszLanguage);
    }
}

void TestModemLooks::speak(WindowFixture& f)
{
    QFETCH(QString, language);
    f.services.SetLanguage(language);
    QApplication::setLayoutDirection(QLocale(language).textDirection());
    QLocale::setDefault(QLocale(language));
    f.window.resize(1240, 760); // as on its first start, nearly, with the large letters of a platform without a screen
    f.window.Retranslate();
}

QStringList TestModemLooks::cut(QWidget* pWidget)
{
    QCoreApplication::sendPostedEvents();
    return TextFit::Cut(pWidget);
}

void TestModemLooks::theFormGrowsWithWhatItSays()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    speak(f);
    f.manager.Lock(2, 2);
    QTRY_VERIFY(f.Form() != nullptr && QTest::qWaitForWindowExposed(f.Form()));
    QVERIFY2(cut(f.Form()).isEmpty(), qPrintable(cut(f.Form()).join('\n')));
    f.manager.Fail("SendPin", "org.freedesktop.ModemManager1.Error.MobileEquipment.IncorrectPassword");
    QTest::keyClicks(f.Find<QLineEdit>("linkhand_PinForm_pin"), "1111");
    f.Find<QPushButton>("linkhand_PinForm_unlock")->click();
    QVERIFY2(cut(f.Form()).isEmpty(), qPrintable(cut(f.Form()).join('\n')));
    QTRY_VERIFY(f.Find<QLabel>("linkhand_PinForm_warning")->isVisible());
    QTRY_VERIFY(f.Find<QCheckBox>("linkhand_PinForm_sure")->isEnabled());
    QVERIFY2(cut(f.Form()).isEmpty(), qPrintable(cut(f.Form()).join('\n')));
    f.manager.Fail("SendPin", "org.freedesktop.ModemManager1.Error.Core.Failed",
                   "something that a modem says in more words than fit into one line or even into two of them");
    QTest::keyClicks(f.Find<QLineEdit>("linkhand_PinForm_pin"), "1234");
    f.Find<QCheckBox>("linkhand_PinForm_sure")->click();
    f.Find<QPushButton>("linkhand_PinForm_unlock")->click();
    QTRY_VERIFY(f.Find<QLabel>("linkhand_PinForm_result")->text().contains("even into two"));
    QVERIFY2(cut(f.Form()).isEmpty(), qPrintable(cut(f.Form()).join('\n')));
}

void TestModemLooks::theOpenFormFollowsTheLanguage()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    f.manager.Lock(2, 1);
    QTRY_VERIFY(f.Form() != nullptr && QTest::qWaitForWindowExposed(f.Form()));
    QLineEdit* pPin = f.Find<QLineEdit>("linkhand_PinForm_pin");
    f.manager.Fail("SendPin", "org.freedesktop.ModemManager1.Error.Core.Failed", "100 %1");
    QTest::keyClicks(pPin, "1234");
    f.Find<QCheckBox>("linkhand_PinForm_sure")->click();
    f.Find<QPushButton>("linkhand_PinForm_unlock")->click();
    QTRY_COMPARE(f.Find<QLabel>("linkhand_PinForm_result")->text(),
                 QString("The PIN could not be given to the card: 100 %1"));
    QTest::keyClicks(pPin, "5678");
    f.Find<QCheckBox>("linkhand_PinForm_sure")->click();
    const QMap<QString, QString> before = texts(f.Form());
    QVERIFY(before.size() >= 8);
    f.services.SetLanguage("de");
    f.window.Retranslate();
    const QMap<QString, QString> after = texts(f.Form());
    QCOMPARE(after.keys(), before.keys());
    foreach (const QString& strName, before.keys()) {
        QVERIFY2(after.value(strName) != before.value(strName), qPrintable(strName));
    }
    QVERIFY(f.Find<QLabel>("linkhand_PinForm_result")->text().endsWith(": 100 %1"));
    QCOMPARE(f.Find<QLabel>("linkhand_PinForm_tries")->text(), QString("Verbleibende Versuche: 1"));
    // What the user has done so far stays.
    QCOMPARE(pPin->text(), QString("5678"));
    QVERIFY(f.Find<QCheckBox>("linkhand_PinForm_sure")->isChecked());
    QVERIFY(f.Find<QPushButton>("linkhand_PinForm_unlock")->isEnabled());
    // The form grows with its texts.
    QTRY_VERIFY2(cut(f.Form()).isEmpty(), qPrintable(cut(f.Form()).join('\n')));
}

void TestModemLooks::timeAndStateOfAMessageAreReadable()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    f.window.SetDevicePanelShown(true);
    f.window.ShowPage("Messages");
    for (int iState = MESSAGE_SIMULATED; iState <= MESSAGE_RECEIVED; ++iState) {
        QVERIFY(f.store.Add(f.Sms("Hello"), MessageState(iState), QString(),
                            QDateTime(QDate(2026, 11, 22), QTime(22, 44))) != 0);
    }
    speak(f);
    QTreeWidget* pList = f.Find<QTreeWidget>("linkhand_Messages_list");
    QTRY_VERIFY(pList->isVisible() && pList->viewport()->width() > 600);
    QCOMPARE(pList->topLevelItemCount(), 7);
    QVERIFY(pList->columnWidth(2) >= 60); // the text
    for (const int iColumn : {0, 1, 3, 4}) {
        const int iHas = pList->columnWidth(iColumn);
        pList->resizeColumnToContents(iColumn);
        QVERIFY2(pList->columnWidth(iColumn) <= iHas, qPrintable(QString("column %1").arg(iColumn)));
    }
    QTRY_VERIFY2(cut(&f.window).isEmpty(), qPrintable(cut(&f.window).join('\n')));
}

void TestModemLooks::thePanelReadsInItsDirection()
{
    WindowFixture f;
    QVERIFY(f.IsReady());
    f.window.SetDevicePanelShown(true);
    speak(f);
    const QLabel* pState = f.Find<QLabel>("linkhand_HardwarePanel_state");
    QTRY_VERIFY(pState->text().contains("Test Net"));
    QCOMPARE(pState->text().isRightToLeft(), QApplication::isRightToLeft());
    QTRY_VERIFY2(cut(&f.window).isEmpty(), qPrintable(cut(&f.window).join('\n')));
}

QTEST_MAIN(TestModemLooks)
#include "test_modem_looks.moc"
