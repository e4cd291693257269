#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "common/MessageEditor.h"
#include "common/MessageWindows.h"
#include "linkhand/core/ExtendDialog.h"
#include "notify/NotifyLog.h"
#include "videocall/VideoCallPlugin.h"
#include "voicecall/CallPage.h"

// Parts of the siblings with no host around them.
class TestSiblingEditors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void anEditorOpensWhereSomethingIsMissing_data();
    void anEditorOpensWhereSomethingIsMissing();
    void tabLeavesTheText();
    void eachOpenEditorIsKeptInMind();
    void anEditorThatWasClosedIsForgotten();
    void returnDialsNothingThatIsNoNumber();
    void aVideoCallAloneOpensTheVideoWindow();
    void theLogKeepsTheLatestOfTheFilesSetAside();
    void numbersToSaveShowAsTheyWereTyped();

private:
    static QList<ExtendDialog*> windows()
    {
        QList<ExtendDialog*> found;
        foreach (QWidget* pWidget, QApplication::topLevelWidgets()) {
            if (ExtendDialog* pDialog = qobject_cast<ExtendDialog*>(pWidget)) {
                found << pDialog;
            }
        }
        return found;
    }
};

void TestSiblingEditors::initTestCase()
{
    // Nobody has texts here, so that each shows as its id.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no English texts"));
    const MessageEditor first("SMSUIPlugin", HOST_MESSAGE_SMS);
}

void TestSiblingEditors::anEditorOpensWhereSomethingIsMissing_data()
{
    QTest::addColumn<QStringList>("numbers");
    QTest::addColumn<QString>("focus");
    QTest::newRow("nobody to send to") << QStringList() << "SMSUIPlugin_lineeditTo";
    QTest::newRow("somebody") << QStringList("123") << "SMSUIPlugin_texteditText";
}

void TestSiblingEditors::anEditorOpensWhereSomethingIsMissing()
{
    QFETCH(QStringList, numbers);
    MessageEditor editor("SMSUIPlugin", HOST_MESSAGE_SMS);
    editor.SetRecipients(numbers);
    editor.show();
    QVERIFY(editor.focusWidget() != nullptr);
    QTEST(editor.focusWidget()->objectName(), "focus");
}

void TestSiblingEditors::tabLeavesTheText()
{
    MessageEditor editor("SMSUIPlugin", HOST_MESSAGE_SMS);
    editor.SetRecipients(QStringList("123"));
    editor.show();
    QApplication::setActiveWindow(&editor);
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    QPlainTextEdit* pText = editor.findChild<QPlainTextEdit*>();
    QVERIFY(pText->hasFocus());
    QTest::keyClick(pText, Qt::Key_Tab);
    QVERIFY(!pText->hasFocus());
    QCOMPARE(pText->toPlainText(), QString());
}

void TestSiblingEditors::eachOpenEditorIsKeptInMind()
{
    {
        MessageWindows open("SMSUIPlugin", HOST_MESSAGE_SMS);
        for (int i = 0; i < 3; ++i) {
            open.Open(QStringList(), QString());
        }
        QCOMPARE(windows().size(), 3);
        foreach (ExtendDialog* pWindow, windows()) {
            pWindow->setWindowTitle("old language");
        }
        open.Retranslate();
        foreach (const ExtendDialog* pWindow, windows()) {
            QCOMPARE(pWindow->windowTitle(), QString("IDS_TITLE"));
        }
    }
    QCOMPARE(windows().size(), 0);
}

void TestSiblingEditors::anEditorThatWasClosedIsForgotten()
{
    MessageWindows open("SMSUIPlugin", HOST_MESSAGE_SMS);
    open.Open(QStringList("1"), QString());
    const QPointer<ExtendDialog> pFirst = windows().first();
    pFirst->close();
    QTRY_VERIFY(!pFirst);
    open.Open(QStringList("2"), QString());
    open.Retranslate();
    QCOMPARE(windows().size(), 1);
}

void TestSiblingEditors::returnDialsNothingThatIsNoNumber()
{
    CallPage page("VoiceCallPlugin");
    page.show();
    // What cannot be dialled opens a box that says so.
    bool bBox = false;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&bBox]() {
        if (QWidget* pBox = QApplication::activeModalWidget()) {
            bBox = true;
            pBox->close();
        }
    });
    closer.start(1);
    QLineEdit* pNumber = page.findChild<QLineEdit*>("VoiceCallPlugin_lineeditNumber");
    QVERIFY(pNumber != nullptr);
    foreach (const QString& strText, QStringList() << ""
                                                   << "Anna"
                                                   << "12x") {
        pNumber->setText(strText);
        QTest::keyClick(pNumber, Qt::Key_Return);
        QVERIFY(!bBox);
    }
    // Without a host even a number cannot be dialled, and that is said.
    pNumber->setText("123");
    QTest::keyClick(pNumber, Qt::Key_Return);
    QVERIFY(bBox);
}

void TestSiblingEditors::aVideoCallAloneOpensTheVideoWindow()
{
    VideoCallPlugin plugin;
    QVERIFY(plugin.Init());
    QVERIFY(QMetaObject::invokeMethod(&plugin, "OnCallStarted", Q_ARG(QString, "1"), Q_ARG(int, HOST_CALL_VOICE)));
    QCOMPARE(windows().size(), 0);
    QVERIFY(QMetaObject::invokeMethod(&plugin, "OnCallStarted", Q_ARG(QString, "1"), Q_ARG(int, HOST_CALL_VIDEO)));
    QCOMPARE(windows().size(), 1);
    QVERIFY(windows().first()->isVisible());
    plugin.OnDestroy();
    QCOMPARE(windows().size(), 0);
}

void TestSiblingEditors::theLogKeepsTheLatestOfTheFilesSetAside()
{
    const QTemporaryDir folder;
    NotifyLog log(folder.path() + '/');
    for (const char letter : {'a', 'b'}) {
        for (int i = 0; i < 1100; ++i) {
            log.Append(QString(1000, QLatin1Char(letter)));
        }
        log.Flush();
        QFile aside(folder.filePath("notifications.log.1"));
        QVERIFY(aside.open(QIODevice::ReadOnly));
        QVERIFY(aside.readAll().trimmed().endsWith(letter));
    }
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 2);
}

void TestSiblingEditors::numbersToSaveShowAsTheyWereTyped()
{
    MessageEditor editor("SMSUIPlugin", HOST_MESSAGE_SMS);
    editor.SetRecipients({"12&34", "56&&78", "90"});
    QStringList lstTexts;
    QStringList lstNumbers;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&] {
        if (QMenu* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            foreach (const QAction* pAction, pMenu->actions()) {
                lstTexts << pAction->text();
                lstNumbers << pAction->data().toString();
            }
            pMenu->close();
        }
    });
    closer.start(1);
    QVERIFY(QMetaObject::invokeMethod(&editor, "OnSaveNumber"));
    // In an entry one ampersand is written as two.
    QCOMPARE(lstTexts, QStringList({"12&&34", "56&&&&78", "90"}));
    QCOMPARE(lstNumbers, QStringList({"12&34", "56&&78", "90"}));
}

QTEST_MAIN(TestSiblingEditors)
#include "test_sibling_editors.moc"
