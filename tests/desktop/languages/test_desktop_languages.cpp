#include <QApplication>
#include <QDir>
#include <QWidget>
#include <QtTest>

#include "ContactSheet.h"
#include "Director.h"
#include "Scenes.h"

// Every window of the program in each language. With "--sheets FOLDER" it writes pictures of them, light and dark, in
// place of the tests: one sheet a language and theme; with "--shots FOLDER" each window by itself as well.

namespace
{

const QStringList& languages()
{
    static const QStringList s_lstLanguages = {"en", "de", "ar", "zh_CN"};
    return s_lstLanguages;
}

QList<Director::Pass> passes(bool bPictures)
{
    QList<Director::Pass> listPasses;
    foreach (const QString& strLanguage, languages()) {
        listPasses << Director::Pass{strLanguage, !bPictures && strLanguage == "zh_CN"};
        if (bPictures) {
            listPasses << Director::Pass{strLanguage, true};
        }
    }
    if (!bPictures) {
        // To the language with a font of its own and away from it the colours change at once with it.
        // Back from each to another than the one it was come to from.
        listPasses << Director::Pass{"ar", false} << Director::Pass{"de", false} << Director::Pass{"en", false};
    }
    return listPasses;
}

// Widgets that have kept the fonts of another language.
QStringList fontsLeft(QWidget* pWidget)
{
    const QString strFamily = QApplication::font().family();
    QStringList lstLeft;
    foreach (const QWidget* pPart, QList<QWidget*>() << pWidget << pWidget->findChildren<QWidget*>()) {
        if (pPart->isVisibleTo(pWidget) && pPart->font().family() != strFamily) {
            lstLeft << QStringLiteral("%1 %2: %3")
                           .arg(pPart->metaObject()->className(), pPart->objectName(), pPart->font().family());
        }
    }
    return lstLeft;
}

bool writeSheets(const QList<Shot>& listShots, const QString& strFolder, const QString& strShots)
{
    bool bDone = QDir().mkpath(strFolder) && (strShots.isEmpty() || QDir().mkpath(strShots));
    foreach (const QString& strTheme, QStringList({"light", "dark"})) {
        foreach (const QString& strLanguage, languages()) {
            QList<Shot> listSheet;
            foreach (const Shot& shot, listShots) {
                if (shot.strLanguage != strLanguage || shot.strTheme != strTheme) {
                    continue;
                }
                listSheet << shot;
                if (!strShots.isEmpty()) {
                    bDone =
                        shot.image.save(
                            QStringLiteral("%1/%2-%3-%4.png").arg(strShots, strLanguage, strTheme, shot.strScene)) &&
                        bDone;
                }
            }
            const QString strFile = QStringLiteral("%1/sheet-%2-%3.png").arg(strFolder, strLanguage, strTheme);
            bDone = ContactSheet::Join(listSheet).save(strFile, "PNG", 0) && bDone;
        }
    }
    return bDone;
}

QString option(const QStringList& lstArguments, const char* pszName)
{
    const int iAt = lstArguments.indexOf(QLatin1String(pszName));
    return iAt >= 0 ? lstArguments.value(iAt + 1) : QString();
}

} // namespace

// What the director has seen.
class TestDesktopLanguages : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktopLanguages(const Director& director) : m_director(director) {}

private slots:
    void everyWindowCame();
    void noTextIsCutOff_data() { languageRows(); }
    void noTextIsCutOff();
    void aChangeOfLanguageLeavesNoTextBehind_data() { languageRows(); }
    void aChangeOfLanguageLeavesNoTextBehind();
    void aChangeOfLanguageLeavesNoFontBehind_data() { languageRows(); }
    void aChangeOfLanguageLeavesNoFontBehind();

private:
    void languageRows();

    const Director& m_director;
};

void TestDesktopLanguages::languageRows()
{
    QTest::addColumn<QString>("language");
    foreach (const QString& strLanguage, languages()) {
        QTest::newRow(qPrintable(strLanguage)) << strLanguage;
    }
}

void TestDesktopLanguages::everyWindowCame()
{
    QVERIFY2(m_director.Failures().isEmpty(), qPrintable(m_director.Failures().join('\n')));
    QCOMPARE(m_director.Shots().size(), Scenes::All().size() * passes(false).size());
}

void TestDesktopLanguages::noTextIsCutOff()
{
    QFETCH(QString, language);
    QStringList lstCut;
    foreach (const Shot& shot, m_director.Shots()) {
        foreach (const QString& strProblem, shot.strLanguage == language ? shot.lstCut : QStringList()) {
            lstCut << shot.strScene + ": " + strProblem;
        }
    }
    lstCut.removeDuplicates();
    QVERIFY2(lstCut.isEmpty(), qPrintable('\n' + lstCut.join('\n')));
}

void TestDesktopLanguages::aChangeOfLanguageLeavesNoTextBehind()
{
    QFETCH(QString, language);
    QStringList lstForeign;
    foreach (const Shot& shot, m_director.Shots()) {
        foreach (const QString& strText, shot.strLanguage == language ? shot.lstForeign : QStringList()) {
            lstForeign << shot.strScene + ": " + strText;
        }
    }
    lstForeign.removeDuplicates();
    QVERIFY2(lstForeign.isEmpty(), qPrintable('\n' + lstForeign.join('\n')));
}

void TestDesktopLanguages::aChangeOfLanguageLeavesNoFontBehind()
{
    QFETCH(QString, language);
    QStringList lstLeft;
    foreach (const Shot& shot, m_director.Shots()) {
        foreach (const QString& strFont, shot.strLanguage == language ? shot.lstFaults : QStringList()) {
            lstLeft << shot.strScene + ": " + strFont;
        }
    }
    QVERIFY2(lstLeft.isEmpty(), qPrintable('\n' + lstLeft.join('\n')));
}

int main(int argc, char** argv)
{
    QStringList lstArguments;
    for (int i = 1; i < argc; ++i) {
        lstArguments << QString::fromLocal8Bit(argv[i]);
    }
    const QString strSheets = option(lstArguments, "--sheets");
    Director director(passes(!strSheets.isEmpty()), !strSheets.isEmpty());
    director.SetInspector(fontsLeft);
    if (!director.Run(argc, argv)) {
        return 1;
    }
    if (!strSheets.isEmpty()) {
        // Captions need fonts, and these an application.
        const QGuiApplication application(argc, argv);
        const bool bDone = writeSheets(director.Shots(), strSheets, option(lstArguments, "--shots"));
        return bDone && director.Failures().isEmpty() ? 0 : 1;
    }
    TestDesktopLanguages test(director);
    return QTest::qExec(&test, argc, argv);
}

#include "test_desktop_languages.moc"
