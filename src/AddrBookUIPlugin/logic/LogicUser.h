#ifndef ADDRBOOKUIPLUGIN_LOGICUSER_H
#define ADDRBOOKUIPLUGIN_LOGICUSER_H

#include <QtGlobal>

// Somebody who works with AddrBookLogic on a thread of its own. Whoever owns it: before the logic goes, it is told to
// end, and returns when its thread touches the logic no more. Made, ended and destroyed on the user-interface thread.
class LogicUser
{
public:
    virtual void endWithLogic() = 0;

    // Ends all that are alive.
    static void endAll();

protected:
    LogicUser();
    virtual ~LogicUser();

private:
    Q_DISABLE_COPY(LogicUser)
};

#endif // ADDRBOOKUIPLUGIN_LOGICUSER_H
