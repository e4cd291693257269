#include "Steps.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace
{

QString xdotoolKey(const QString& strKey)
{
    static const QHash<QString, QString> s_names = {{"Ctrl", "ctrl"},  {"Shift", "shift"}, {"Alt", "alt"},
                                                    {",", "comma"},    {"Del", "Delete"},  {"Esc", "Escape"},
                                                    {"Space", "space"}};
    QStringList lstParts;
    foreach (const QString& strPart, strKey.split('+')) {
        lstParts << s_names.value(strPart, strPart.length() == 1 ? strPart.toLower() : strPart);
    }
    return lstParts.join('+');
}

QList<Step> stepsOf(const QString& strText)
{
    static const QRegularExpression s_steps("`([^`]+)`(?:\\s+to\\s+\\*([^*]+)\\*)?|\"([^\"]+)\"|\\*([^*]+)\\*");
    QList<Step> listSteps;
    QRegularExpressionMatchIterator it = s_steps.globalMatch(strText);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        if (!match.captured(1).isEmpty()) {
            const bool bUntil = !match.captured(2).isEmpty();
            listSteps << Step{bUntil ? Step::PRESS_UNTIL : Step::PRESS, xdotoolKey(match.captured(1)),
                              match.captured(2).simplified()};
        } else if (!match.captured(3).isEmpty()) {
            listSteps << Step{Step::TYPE, QString(), match.captured(3).simplified()};
        } else {
            listSteps << Step{Step::SEE, QString(), match.captured(4).simplified()};
        }
    }
    return listSteps;
}

} // namespace

QString Step::Told() const
{
    switch (enKind) {
    case PRESS:
        return strKey;
    case PRESS_UNTIL:
        return strKey + " to " + strText;
    case TYPE:
        return '"' + strText + '"';
    case SEE:
        break;
    }
    return "see " + strText;
}

QList<Task> Steps::Read(const QString& strFile, const QString& strChapter)
{
    QFile file(strFile);
    QList<Task> listTasks;
    if (!file.open(QIODevice::ReadOnly)) {
        return listTasks;
    }
    const QString strText = '\n' + QString::fromUtf8(file.readAll());
    const QString strTasks = strText.section("\n## " + strChapter + '\n', 1).section("\n## ", 0, 0);
    foreach (const QString& strTask, strTasks.split("\n### ").mid(1)) {
        listTasks << Task{strTask.section('\n', 0, 0), stepsOf(strTask.section('\n', 1))};
    }
    return listTasks;
}
