#ifndef LINKHAND_HOST_COMMANDLINE_H
#define LINKHAND_HOST_COMMANDLINE_H

#include <QString>
#include <QStringList>

// The arguments of the program.
struct CommandLine {
    bool bHelp = false;
    bool bVersion = false;
    QString strDataDir;    // empty: where the environment says
    QString strHardware;   // empty: as it was chosen last
    QString strScreenshot; // empty: none is taken
    QStringList lstOpened; // what is to be opened, each as Request::Portable gives it
    QString strError;      // not empty: the arguments make no sense, and this says why

    // Reads the arguments, without the program's name. Qt's own options must have been taken out already.
    static CommandLine Parse(const QStringList& lstArguments);

    // True if the arguments ask for help or the version only, which needs no display.
    static bool WantsText(const QStringList& lstArguments);

    static QString HelpText();
    static QString VersionText();
};

#endif // LINKHAND_HOST_COMMANDLINE_H
