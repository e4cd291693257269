// A session manager for one client. It writes its address, waits for a line on its input, and logs the session out: the
// client is told to save itself and then to end. It ends when the client has gone.

#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>

#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <unistd.h>

namespace
{

SmsConn s_client = nullptr;

int onRegister(SmsConn client, SmPointer, char* pszId)
{
    std::free(pszId);
    char* pszNew = SmsGenerateClientID(client);
    SmsRegisterClientReply(client, pszNew);
    std::free(pszNew);
    return 1;
}

// As every client expects it once it has registered.
void onSaved(SmsConn client, SmPointer, int)
{
    SmsDie(client);
}

void onClosed(SmsConn, SmPointer, int, char** ppszReasons)
{
    std::puts("closed");
    SmFreeReasons(0, ppszReasons);
    std::exit(0);
}

void onProperties(SmsConn, SmPointer, int iCount, SmProp** ppProperties)
{
    for (int i = 0; i < iCount; ++i) {
        SmFreeProperty(ppProperties[i]);
    }
    std::free(ppProperties);
}

void onDeleted(SmsConn, SmPointer, int iCount, char** ppszNames)
{
    for (int i = 0; i < iCount; ++i) {
        std::free(ppszNames[i]);
    }
    std::free(ppszNames);
}

int onClient(SmsConn client, SmPointer, unsigned long* pulMask, SmsCallbacks* pCallbacks, char**)
{
    s_client = client;
    *pulMask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
               SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
               SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
               SmsGetPropertiesProcMask;
    *pCallbacks = SmsCallbacks();
    pCallbacks->register_client.callback = onRegister;
    pCallbacks->interact_request.callback = [](SmsConn smsConn, SmPointer, int) { SmsInteract(smsConn); };
    pCallbacks->interact_done.callback = [](SmsConn, SmPointer, int iCancel) {
        if (iCancel != 0) {
            std::puts("cancelled");
        }
    };
    pCallbacks->save_yourself_request.callback = [](SmsConn, SmPointer, int, int, int, int, int) {};
    pCallbacks->save_yourself_phase2_request.callback = [](SmsConn smsConn, SmPointer) {
        SmsSaveYourselfPhase2(smsConn);
    };
    pCallbacks->save_yourself_done.callback = onSaved;
    pCallbacks->close_connection.callback = onClosed;
    pCallbacks->set_properties.callback = onProperties;
    pCallbacks->delete_properties.callback = onDeleted;
    pCallbacks->get_properties.callback = [](SmsConn smsConn, SmPointer) { SmsReturnProperties(smsConn, 0, nullptr); };
    return 1;
}

int everybody(char*)
{
    return 1;
}

} // namespace

int main()
{
    char acError[256] = "";
    int iCount = 0;
    IceListenObj* pListeners = nullptr;
    if (SmsInitialize("tests", "1", onClient, nullptr, everybody, sizeof acError, acError) == 0 ||
        IceListenForConnections(&iCount, &pListeners, sizeof acError, acError) == 0) {
        std::fprintf(stderr, "session manager: %s\n", acError);
        return 1;
    }
    for (int i = 0; i < iCount; ++i) {
        IceSetHostBasedAuthProc(pListeners[i], everybody);
    }
    // A client that goes without a word has gone all the same.
    IceSetIOErrorHandler([](IceConn) { std::exit(0); });
    std::puts(IceComposeNetworkIdList(iCount, pListeners));
    std::fflush(stdout);
    IceConn connection = nullptr;
    for (;;) {
        pollfd polls[8] = {{STDIN_FILENO, POLLIN, 0}};
        int iPolls = 1;
        for (int i = 0; i < iCount && iPolls < 7; ++i) {
            polls[iPolls++] = {IceGetListenConnectionNumber(pListeners[i]), POLLIN, 0};
        }
        if (connection != nullptr) {
            polls[iPolls++] = {IceConnectionNumber(connection), POLLIN, 0};
        }
        if (poll(polls, nfds_t(iPolls), -1) < 0) {
            return 1;
        }
        if (polls[0].revents != 0) {
            char acLine[16];
            if (read(STDIN_FILENO, acLine, sizeof acLine) <= 0 || s_client == nullptr) {
                return 2;
            }
            SmsSaveYourself(s_client, SmSaveBoth, 1, SmInteractStyleAny, 0);
        }
        for (int i = 0; i < iCount && connection == nullptr; ++i) {
            if (polls[1 + i].revents != 0) {
                IceAcceptStatus enStatus = IceAcceptSuccess;
                connection = IceAcceptConnection(pListeners[i], &enStatus);
            }
        }
        if (connection != nullptr && polls[iPolls - 1].fd == IceConnectionNumber(connection) &&
            polls[iPolls - 1].revents != 0) {
            IceProcessMessages(connection, nullptr, nullptr);
        }
    }
}
