#include <QSet>
#include <QTextBrowser>

#include "CareSetup.h"
#include "care/SyncText.h"
#include "orva/orva_sync.h"
#include "text/HostText.h"

// Why a sync left something, in the words of the language in use.
class TestHostCareReasons : public CareSetup
{
    Q_OBJECT

private slots:
    void init() { beginCare(); }
    void cleanup() { endCare(); }

    void eachReasonHasItsWordsInEachLanguage_data() { languages(); }
    void eachReasonHasItsWordsInEachLanguage()
    {
        QFETCH(QString, language);
        QSet<QString> setWords;
        for (int i = ORVA_SYNC_REASON_LINK; i <= ORVA_SYNC_REASON_FULL; ++i) {
            m_pServices->SetLanguage("en");
            const QString strEnglish = SyncText::Reason(i);
            m_pServices->SetLanguage(language);
            const QString strReason = SyncText::Reason(i);
            QVERIFY2(!strReason.isEmpty() && !strReason.contains("IDS_"), qPrintable(strReason));
            QVERIFY2((strReason == strEnglish) == (language == "en"), qPrintable(strReason));
            setWords.insert(strReason);
            const QString strHtml = SyncText::Html(outcomeWith(i), true);
            QVERIFY2(strHtml.contains(strReason) && !strHtml.contains("as the SDK says"), qPrintable(strHtml));
        }
        QCOMPARE(setWords.size(), int(ORVA_SYNC_REASON_FULL));
    }

    void aReasonOfALaterSdkIsToldAsItTellsIt()
    {
        QVERIFY(SyncText::Html(outcomeWith(ORVA_SYNC_REASON_FULL + 1), true).contains("as the SDK says"));
        QVERIFY(SyncText::Html(outcomeWith(ORVA_SYNC_REASON_NONE), true).contains("as the SDK says"));
    }

    void countsAreWrittenAsTheLanguageWritesThem_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("here");
        QTest::addColumn<QString>("held");
        QTest::newRow("English") << "en"
                                 << "Phonebook: 1,200 added, 2 changed, 3 deleted"
                                 << ": 4,567. ";
        QTest::newRow("German") << "de"
                                << "Telefonbuch: 1.200 neu, 2 geändert, 3 gelöscht"
                                << ": 4.567. ";
        QTest::newRow("Arabic") << "ar"
                                << "٢"
                                << ": ٤٬٥٦٧. ";
        QTest::newRow("Chinese") << "zh_CN"
                                 << "1,200"
                                 << "4,567";
    }
    void countsAreWrittenAsTheLanguageWritesThem()
    {
        QFETCH(QString, language);
        QFETCH(QString, here);
        QFETCH(QString, held);
        m_pServices->SetLanguage(language);
        QLocale::setDefault(QLocale(language));
        SyncOutcome outcome;
        outcome.bThere = true;
        outcome.aiHere[0] = 1200;
        outcome.aiHere[1] = 2;
        outcome.aiHere[2] = 3;
        outcome.iHeld = 4567;
        const QString strHtml = SyncText::Html(outcome, true);
        QLocale::setDefault(QLocale::system());
        QVERIFY2(strHtml.contains(here), qPrintable(strHtml));
        QVERIFY2(strHtml.contains(held), qPrintable(strHtml));
    }

    void thePageTellsThemInTheLanguageInUse_data() { languages(); }
    void thePageTellsThemInTheLanguageInUse()
    {
        QFETCH(QString, language);
        m_pServices->SetLanguage(language);
        QTemporaryDir cards;
        QVERIFY(QDir(cards.path()).mkdir("folder.vcf"));
        QVERIFY(QFile::link("elsewhere", cards.path() + "/link.vcf"));
        write(cards.path() + "/none.vcf", "nothing");
        write(cards.path() + "/empty.vcf", card("e", ""));
        write(cards.path() + "/a.vcf", card("a", "Ada"));
        write(cards.path() + "/b.vcf", card("a", "Ada"));
        write(cards.path() + "/large.vcf", QByteArray(6 << 20, 'A'));
        QCOMPARE(ORVA_Sync_SetUpFolder(cards.path().utf16()), long(ORVA_OK));
        void* pResult = nullptr;
        QCOMPARE(ORVA_Sync_RunSetUp(ORVA_MEMORY_LOCAL, 0, 0, nullptr, nullptr, &pResult), long(ORVA_OK));
        ORVA_Sync_Result_Release(pResult);
        openSection("sync");
        const QTextBrowser* pLast = find<QTextBrowser>("linkhand_Care_sync_last");
        QTRY_VERIFY2(pLast->toPlainText().contains("none.vcf"), qPrintable(pLast->toPlainText()));
        foreach (int iReason,
                 (QList<int>() << ORVA_SYNC_REASON_LINK << ORVA_SYNC_REASON_NO_FILE << ORVA_SYNC_REASON_LARGE
                               << ORVA_SYNC_REASON_NO_CARD << ORVA_SYNC_REASON_EMPTY << ORVA_SYNC_REASON_COPY)) {
            QVERIFY2(pLast->toPlainText().contains(SyncText::Reason(iReason)), qPrintable(pLast->toPlainText()));
        }
    }

private:
    static void languages()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << "en";
        QTest::newRow("German") << "de";
        QTest::newRow("Arabic") << "ar";
        QTest::newRow("Chinese") << "zh_CN";
    }

    static SyncOutcome outcomeWith(int iReason)
    {
        SyncNote note;
        note.strName = "a.vcf";
        note.strWhat = "as the SDK says";
        note.iReason = iReason;
        SyncOutcome outcome;
        outcome.bThere = true;
        outcome.listNotes.append(note);
        return outcome;
    }

    static QByteArray card(const QByteArray& uid, const QByteArray& name)
    {
        return "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:" + uid + "\r\nFN:" + name + "\r\nN:" + name +
               ";;;;\r\nEND:VCARD\r\n";
    }

    static void write(const QString& strPath, const QByteArray& text)
    {
        QFile file(strPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
};

QTEST_MAIN(TestHostCareReasons)
#include "test_host_care_reasons.moc"
