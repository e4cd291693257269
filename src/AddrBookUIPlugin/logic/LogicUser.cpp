#include "logic/LogicUser.h"

#include <QList>

namespace
{

QList<LogicUser*>& users()
{
    static QList<LogicUser*> list;
    return list;
}

} // namespace

LogicUser::LogicUser()
{
    users().append(this);
}

LogicUser::~LogicUser()
{
    users().removeAll(this);
}

void LogicUser::endAll()
{
    const QList<LogicUser*> lstUsers = users();
    for (LogicUser* pUser : lstUsers)
        pUser->endWithLogic();
}
