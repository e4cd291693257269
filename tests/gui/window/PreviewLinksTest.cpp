#include <QDesktopServices>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>

#include "WindowFixture.h"

// What opens instead of the desktop's programs.
class Opener : public QObject
{
    Q_OBJECT

public:
    Opener()
    {
        for (const char* scheme : schemes())
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "open");
    }
    ~Opener() override
    {
        for (const char* scheme : schemes())
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    }
    static QList<const char*> schemes()
    {
        return {"http", "https", "mailto", "tel", "sms", "file", "ftp", "ssh", "javascript", "data", "qrc", "x-any"};
    }
    QStringList opened;

public slots:
    void open(const QUrl& url) { opened.append(QString::fromLatin1(url.toEncoded())); }
};

// The links of the preview: a name is shown with its mark-up, and strangers' names come by sync.
class PreviewLinksTest : public WindowTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        qApp->processEvents();
        WindowTest::cleanup();
    }

    void aLinkOpensOnlyWhatItMay_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("opens");
        for (const char* address : {"http://example.org/a", "https://example.org/", "mailto:a@example.org",
                                    "tel:+49171", "sms:+49171?body=Hi", "HTTP://example.org/", "Tel:1"})
            QTest::newRow(address) << address << true;
        for (const char* address :
             {"file:///etc/passwd", "FILE:///etc/passwd", "/etc/passwd", "etc/passwd", "//host/a", "ftp://example.org/",
              "ssh://example.org", "javascript:alert(1)", "data:text/html,a", "qrc:/a", "x-any:a", "#a", "", "?a"})
            QTest::newRow(*address ? address : "empty") << address << false;
    }

    void aLinkOpensOnlyWhatItMay()
    {
        QFETCH(QString, address);
        QFETCH(bool, opens);
        WindowFixture f;
        FakeSdk::addRecord(4, {"<a href=\"" + address + "\">Stranger</a>", "1"});
        f.build();
        f.selectRows({0});
        const QString before = f.previewText();
        QVERIFY(before.contains("Stranger"));
        Opener opener;
        QVERIFY(click(f, "Stranger"));
        QCOMPARE(opener.opened.size(), opens ? 1 : 0);
        if (opens)
            QCOMPARE(opener.opened.first().toLower(), address.toLower());
        // The contact still shows, and no file in its place.
        QCOMPARE(f.previewText(), before);
        QVERIFY(f.in().preview()->source().isEmpty());
    }

    void aLinkIsOpenedByKeysAsWell()
    {
        WindowFixture f;
        FakeSdk::addRecord(4, {"<a href=\"file:///etc/passwd\">No</a> <a href=\"tel:+49171\">Yes</a>", "1"});
        f.build();
        f.selectRows({0});
        Opener opener;
        QTextBrowser* const preview = f.in().preview();
        preview->setFocus();
        for (int i = 0; i < 2; ++i) {
            QTest::keyClick(preview, Qt::Key_Tab);
            QTest::keyClick(preview, Qt::Key_Return);
            // A browser that has gone elsewhere looks for the next link for ever.
            QVERIFY(preview->source().isEmpty());
            QVERIFY2(f.previewText().contains("Yes"), qPrintable(f.previewText()));
        }
        QTRY_COMPARE(opener.opened, QStringList("tel:+49171"));
    }

    void markUpReadsNothingFromTheDisk_data()
    {
        QTest::addColumn<QString>("markUp");
        QTest::newRow("picture") << "<img src=\"%1\">";
        QTest::newRow("picture by URL") << "<img src=\"file://%1\">";
        QTest::newRow("background") << "<table background=\"%1\"><tr><td>a</td></tr></table>";
    }

    void markUpReadsNothingFromTheDisk()
    {
        QFETCH(QString, markUp);
        WindowFixture f;
        QImage image(90, 70, QImage::Format_RGB32);
        image.fill(QColor(255, 0, 255));
        const QString file = f.folder() + "/spy.png";
        QVERIFY(image.save(file));
        FakeSdk::addRecord(4, {"Ada" + markUp.arg(file), "1"});
        f.build();
        f.selectRows({0});
        QVERIFY(f.previewText().contains("Ada"));
        const QImage seen = f.in().preview()->grab().toImage();
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                QVERIFY2(seen.pixelColor(x, y) != QColor(255, 0, 255), qPrintable(QString("%1 %2").arg(x).arg(y)));
    }

private:
    // In the middle of the word.
    static bool click(const WindowFixture& f, const QString& word)
    {
        QTextBrowser* const preview = f.in().preview();
        QTextCursor cursor = preview->document()->find(word);
        if (cursor.isNull())
            return false;
        cursor.setPosition(cursor.selectionStart() + 2);
        const QPoint point = preview->cursorRect(cursor).center();
        QTest::mouseClick(preview->viewport(), Qt::LeftButton, Qt::NoModifier, point);
        return preview->viewport()->rect().contains(point);
    }
};

QTEST_MAIN(PreviewLinksTest)
#include "PreviewLinksTest.moc"
