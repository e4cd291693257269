#include "loader/Verification.h"

#include <QByteArrayMatcher>
#include <QFile>
#include <QList>

#include "linkhand/plugin/PluginVerification.h"

namespace
{

const char* const PATTERN_LINE = "pattern=QT_PLUGIN_VERIFICATION_DATA";
const int LONGEST_TEXT = 1024;

} // namespace

bool Verification::Parse(const QByteArray& text)
{
    version.clear();
    buildKey.clear();
    const QList<QByteArray> listLines = text.split('\n');
    if (listLines.first() != PATTERN_LINE) {
        return false;
    }
    foreach (const QByteArray& line, listLines) {
        if (line.startsWith("version=")) {
            version = line.mid(int(qstrlen("version=")));
        } else if (line.startsWith("buildkey=")) {
            buildKey = line.mid(int(qstrlen("buildkey=")));
        }
    }
    return !version.isEmpty() && !buildKey.isEmpty();
}

bool Verification::ReadFromFile(QFile& file)
{
    const qint64 iSize = file.size();
    uchar* pBytes = file.map(0, iSize);
    if (pBytes == nullptr) {
        return false;
    }
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(pBytes), int(iSize));
    const QByteArrayMatcher matcher(PATTERN_LINE);
    for (int i = matcher.indexIn(bytes); i >= 0; i = matcher.indexIn(bytes, i + 1)) {
        // The pattern may also stand alone, in a program that looks for it.
        const QByteArray rest = bytes.mid(i, LONGEST_TEXT);
        if (Parse(rest.left(rest.indexOf('\0')))) {
            file.unmap(pBytes);
            return true;
        }
    }
    file.unmap(pBytes);
    return false;
}

QByteArray Verification::OwnVersion()
{
    return QT_VERSION_STR;
}

QByteArray Verification::OwnBuildKey()
{
    return LINKHAND_BUILD_KEY;
}
