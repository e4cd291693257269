#include "app/CommandLine.h"

namespace
{

// Takes the value of an option written as "--name value" or "--name=value".
bool takeValue(const QStringList& lstArguments, int& iAt, const QString& strName, QString& strValue, QString& strError)
{
    const QString& strArgument = lstArguments.at(iAt);
    if (strArgument.startsWith(strName + QLatin1Char('='))) {
        strValue = strArgument.mid(strName.length() + 1);
    } else if (strArgument != strName) {
        return false;
    } else if (iAt + 1 < lstArguments.size()) {
        strValue = lstArguments.at(++iAt);
    }
    if (strValue.isEmpty()) {
        strError = QString::fromLatin1("option %1 needs a value").arg(strName);
    }
    return true;
}

} // namespace

CommandLine CommandLine::Parse(const QStringList& lstArguments)
{
    CommandLine line;
    for (int i = 0; i < lstArguments.size() && line.strError.isEmpty(); ++i) {
        const QString& strArgument = lstArguments.at(i);
        if (strArgument == QLatin1String("--help") || strArgument == QLatin1String("-h")) {
            line.bHelp = true;
        } else if (strArgument == QLatin1String("--version")) {
            line.bVersion = true;
        } else if (takeValue(lstArguments, i, QLatin1String("--data-dir"), line.strDataDir, line.strError) ||
                   takeValue(lstArguments, i, QLatin1String("--screenshot"), line.strScreenshot, line.strError)) {
            continue;
        } else {
            line.strError = QString::fromLatin1("unknown argument %1").arg(strArgument);
        }
    }
    return line;
}

bool CommandLine::WantsText(const QStringList& lstArguments)
{
    return lstArguments.contains(QLatin1String("--help")) || lstArguments.contains(QLatin1String("-h")) ||
           lstArguments.contains(QLatin1String("--version"));
}

QString CommandLine::HelpText()
{
    return QLatin1String(
        "Usage: linkhand [options]\n"
        "Linkhand, a mobile-broadband connection manager with a phonebook.\n"
        "\n"
        "  --data-dir DIR      keep contacts, outbox and settings in DIR\n"
        "  --screenshot FILE   write a picture of the window to FILE once contacts are shown, and quit\n"
        "  --version           show the version\n"
        "  -h, --help          show this text\n"
        "\n"
        "Environment: LINKHAND_DATA_DIR (as --data-dir), LINKHAND_DEBUG=1 (debug output).\n");
}

QString CommandLine::VersionText()
{
    return QLatin1String("linkhand " LINKHAND_VERSION "\n");
}
