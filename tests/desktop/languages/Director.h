#ifndef LINKHAND_TESTS_DIRECTOR_H
#define LINKHAND_TESTS_DIRECTOR_H

#include <QImage>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <functional>

// One window of the program, or one state of it.
struct Scene {
    QString strName;
    std::function<void()> open;     // may run a window's own event loop
    std::function<QWidget*()> find; // the window, null while it is not there as it should be
    std::function<void()> close;
};

// What was seen of a scene.
struct Shot {
    QString strScene;
    QString strLanguage;
    QString strTheme;
    QImage image;
    QStringList lstCut;     // texts that do not fit
    QStringList lstForeign; // texts of the language before
    QStringList lstFaults;  // what the inspector found
};

// Plays scenes inside the running program: opens each, waits until it is calm, looks at it and closes it. It lives on a
// timer, and so works on while a window runs a loop of its own.
class Director : public QObject
{
    Q_OBJECT

public:
    // One pass over all scenes.
    struct Pass {
        QString strLanguage;
        bool bDark;
    };

    Director(const QList<Pass>& listPasses, bool bPictures);

    // These in place of all scenes.
    void SetScenes(const QList<Scene>& listScenes) { m_listScenes = listScenes; }

    // The size that the window gets once it has come; an invalid one leaves it as it came.
    void SetWindowSize(const QSize& size) { m_sizeWindow = size; }

    // The size of the desktop's letters, where it is not the usual one.
    void SetFontPoints(int iPoints) { m_iFontPoints = iPoints; }

    void Start();

    // Looks at each window besides; what it finds wrong are the shot's lstFaults.
    void SetInspector(const std::function<QStringList(QWidget*)>& inspect) { m_inspect = inspect; }

    // Fills the phonebook, runs the program with the director in it and comes back at its end. False if it could not.
    bool Run(int& argc, char** argv);

    const QList<Shot>& Shots() const { return m_listShots; }

    // What went wrong: scenes that did not come, languages that could not be chosen.
    const QStringList& Failures() const { return m_lstFailures; }

private slots:
    void OnTick();

private:
    enum State { BEGIN_PASS, SETTLE, OPEN, WAIT, CLOSE, GONE, DONE };

    void beginPass();
    void look(QWidget* pWidget);
    void fail(const QString& strWhat);

    QList<Pass> m_listPasses;
    QList<Scene> m_listScenes;
    bool m_bPictures;
    QTimer m_timer;
    State m_enState;
    int m_iPass;
    int m_iScene;
    int m_iTicks; // in this state
    int m_iCalm;
    QSize m_sizeLast;
    QSize m_sizeWindow;
    int m_iFontPoints;
    QPointer<QWidget> m_pShown;
    std::function<QStringList(QWidget*)> m_inspect;
    QString m_strBefore; // the language of the pass before
    QList<Shot> m_listShots;
    QStringList m_lstFailures;
};

#endif // LINKHAND_TESTS_DIRECTOR_H
