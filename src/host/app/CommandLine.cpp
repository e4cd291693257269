#include "app/CommandLine.h"

#include <QByteArray>

#include <getopt.h>
#include <vector>

#include "requests/Request.h"

namespace
{

enum { DATA_DIR = 256, HARDWARE, SCREENSHOT, VERSION_TEXT }; // beyond all characters

const option OPTIONS[] = {{"data-dir", required_argument, nullptr, DATA_DIR},
                          {"hardware", required_argument, nullptr, HARDWARE},
                          {"screenshot", required_argument, nullptr, SCREENSHOT},
                          {"version", no_argument, nullptr, VERSION_TEXT},
                          {"help", no_argument, nullptr, 'h'},
                          {nullptr, 0, nullptr, 0}};

// The minus: what is no option comes in its turn, as 1. The colon: getopt says nothing by itself, and tells a missing
// value from an unknown option.
const char SHORT_OPTIONS[] = "-:h";

QString needsValue(const char* pszOption)
{
    return QString::fromLatin1("option %1 needs a value").arg(QString::fromUtf8(pszOption));
}

QString takeValue(const char* pszOption, QString& strError)
{
    QString strValue = QString::fromUtf8(optarg);
    if (strValue.isEmpty()) {
        strError = needsValue(pszOption);
    }
    return strValue;
}

// What is no option must be something that can be opened.
void open(const char* pszGiven, CommandLine& line)
{
    const QString strGiven = QString::fromUtf8(pszGiven);
    if (Request::Of(strGiven).enKind == Request::NONE) {
        line.strError = QString::fromLatin1("unknown argument %1").arg(strGiven);
    } else {
        line.lstOpened.append(Request::Portable(strGiven));
    }
}

// Takes what getopt_long has found; `pszGiven` is the argument that it last looked at.
void take(int iFound, const char* pszGiven, CommandLine& line)
{
    switch (iFound) {
    case DATA_DIR:
        line.strDataDir = takeValue("--data-dir", line.strError);
        break;
    case HARDWARE:
        line.strHardware = takeValue("--hardware", line.strError);
        break;
    case SCREENSHOT:
        line.strScreenshot = takeValue("--screenshot", line.strError);
        break;
    case VERSION_TEXT:
        line.bVersion = true;
        break;
    case 'h':
        line.bHelp = true;
        break;
    case 1:
        open(pszGiven, line);
        break;
    case ':':
        line.strError = needsValue(pszGiven);
        break;
    default:
        line.strError = QString::fromLatin1("unknown argument %1").arg(QString::fromUtf8(pszGiven));
    }
}

} // namespace

CommandLine CommandLine::Parse(const QStringList& lstArguments)
{
    std::vector<QByteArray> texts(1, "linkhand");
    foreach (const QString& strArgument, lstArguments) {
        texts.push_back(strArgument.toUtf8());
    }
    std::vector<char*> arguments;
    arguments.reserve(texts.size() + 1);
    for (QByteArray& text : texts) {
        arguments.push_back(text.data());
    }
    arguments.push_back(nullptr);
    CommandLine line;
    optind = 0; // from the beginning, also a second time
    while (line.strError.isEmpty()) {
        const int iLast = qMax(optind, 1);
        const int iFound = getopt_long(int(texts.size()), arguments.data(), SHORT_OPTIONS, OPTIONS, nullptr);
        if (iFound == -1) {
            while (optind < int(texts.size()) && line.strError.isEmpty()) { // behind "--"
                open(arguments[size_t(optind++)], line);
            }
            break;
        }
        // Inside "-xyz" it has not gone on yet.
        take(iFound, arguments[size_t(qMax(optind - 1, iLast))], line);
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
        "Usage: linkhand [options] [what to open]...\n"
        "Linkhand, a mobile-broadband connection manager with a phonebook. Where it runs already, its window comes "
        "up.\n"
        "\n"
        "  tel:NUMBER          put a number into the form for calls\n"
        "  sms:NUMBER?body=T   write a message\n"
        "  FILE                look into a file of contacts (.vcf, .vcard, .csv) and import it\n"
        "\n"
        "  --data-dir DIR      keep contacts, outbox and settings in DIR\n"
        "  --hardware CHOICE   from now on use no modem (simulated), the one that there is (auto), or the one\n"
        "                      with this port (/dev/ttyUSB2)\n"
        "  --screenshot FILE   write a picture of the window to FILE once contacts are shown, and quit\n"
        "  --version           show the version\n"
        "  -h, --help          show this text\n"
        "\n"
        "Environment: LINKHAND_DATA_DIR (as --data-dir), LINKHAND_MODEM (before what --hardware chose),\n"
        "LINKHAND_DEBUG=1 (debug output).\n");
}

QString CommandLine::VersionText()
{
    return QLatin1String("linkhand " LINKHAND_VERSION "\n");
}
