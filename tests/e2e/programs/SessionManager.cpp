// SPDX-License-Identifier: GPL-3.0-or-later
// Plays the session manager of a desktop (XSMP): says "address ADDRESS" and then, a line for each, what its clients do.
// SIGUSR1 asks them to save themselves, SIGUSR2 does so because the session ends, and ends them when they have.
#include <X11/SM/SMlib.h>

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

struct Client {
    SmsConn session = nullptr;
    bool isEnding = false;
};
std::vector<Client*> clients;
bool isShuttingDown = false;

Status registered(SmsConn session, SmPointer, char* previousId) {
    char* id = SmsGenerateClientID(session);
    SmsRegisterClientReply(session, id);
    std::fprintf(stderr, "registered\n");
    std::free(id);
    if (!previousId) // as the protocol wants it of a client that is new
        SmsSaveYourself(session, SmSaveLocal, False, SmInteractStyleNone, False);
    std::free(previousId);
    return 1;
}

void saved(SmsConn session, SmPointer, Bool success) {
    std::fprintf(stderr, "saved %s\n", success ? "well" : "badly");
    if (isShuttingDown)
        SmsDie(session);
    else
        SmsSaveComplete(session);
}

void closed(SmsConn session, SmPointer data, int count, char** reasons) {
    std::fprintf(stderr, "closed\n");
    SmFreeReasons(count, reasons);
    static_cast<Client*>(data)->isEnding = true;
    SmsCleanUp(session);
}

void propertiesSet(SmsConn, SmPointer, int count, SmProp** properties) {
    for (int i = 0; i < count; ++i)
        SmFreeProperty(properties[i]);
    std::free(properties);
}

Status arrived(SmsConn session, SmPointer, unsigned long* mask, SmsCallbacks* callbacks, char**) {
    auto* client = new Client{session};
    clients.push_back(client);
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
            SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
            SmsGetPropertiesProcMask;
    callbacks->register_client = {registered, client};
    callbacks->interact_request = {[](SmsConn asking, SmPointer, int) { SmsInteract(asking); }, client};
    callbacks->interact_done = {[](SmsConn, SmPointer, Bool) {}, client};
    callbacks->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}, client};
    callbacks->save_yourself_phase2_request = {[](SmsConn asking, SmPointer) { SmsSaveYourselfPhase2(asking); },
                                               client};
    callbacks->save_yourself_done = {saved, client};
    callbacks->close_connection = {closed, client};
    callbacks->set_properties = {propertiesSet, client};
    callbacks->delete_properties = {[](SmsConn, SmPointer, int, char**) {}, client};
    callbacks->get_properties = {[](SmsConn asking, SmPointer) { SmsReturnProperties(asking, 0, nullptr); }, client};
    return 1;
}

void askAll() {
    for (const Client* client : clients)
        SmsSaveYourself(client->session, isShuttingDown ? SmSaveBoth : SmSaveLocal, isShuttingDown, SmInteractStyleNone,
                        False);
}

} // namespace

int main() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGUSR1);
    sigaddset(&signals, SIGUSR2);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    const int asked = ::signalfd(-1, &signals, SFD_CLOEXEC);
    char error[256] = "";
    int count = 0;
    IceListenObj* listeners = nullptr;
    IceSetIOErrorHandler([](IceConn) {});
    if (!SmsInitialize(
            "Test", "1", arrived, nullptr, [](char*) { return True; }, sizeof error, error) ||
        !IceListenForConnections(&count, &listeners, sizeof error, error)) {
        std::fprintf(stderr, "%s\n", error);
        return 1;
    }
    for (int i = 0; i < count; ++i)
        IceSetHostBasedAuthProc(listeners[i], [](char*) { return True; });
    std::fprintf(stderr, "address %s\n", IceComposeNetworkIdList(count, listeners));

    std::vector<IceConn> connections;
    while (true) {
        std::vector<pollfd> waited = {{asked, POLLIN, 0}};
        for (int i = 0; i < count; ++i)
            waited.push_back({IceGetListenConnectionNumber(listeners[i]), POLLIN, 0});
        for (IceConn connection : connections)
            waited.push_back({IceConnectionNumber(connection), POLLIN, 0});
        if (::poll(waited.data(), waited.size(), -1) < 0)
            return 1;
        if (signalfd_siginfo info{};
            waited[0].revents != 0 && ::read(asked, &info, sizeof info) == static_cast<ssize_t>(sizeof info)) {
            isShuttingDown = info.ssi_signo == SIGUSR2;
            askAll();
        }
        std::vector<IceConn> still;
        for (std::size_t i = 0; i < connections.size(); ++i) {
            const bool isReady = waited[1 + static_cast<std::size_t>(count) + i].revents != 0;
            if (isReady && IceProcessMessages(connections[i], nullptr, nullptr) != IceProcessMessagesSuccess) {
                std::erase_if(clients, [&](const Client* client) {
                    return client->isEnding || SmsGetIceConnection(client->session) == connections[i];
                });
                IceSetShutdownNegotiation(connections[i], False);
                IceCloseConnection(connections[i]);
            } else {
                still.push_back(connections[i]);
            }
        }
        connections = std::move(still);
        for (int i = 0; i < count; ++i) {
            if (waited[1 + static_cast<std::size_t>(i)].revents == 0)
                continue;
            IceAcceptStatus status = IceAcceptFailure;
            IceConn connection = IceAcceptConnection(listeners[i], &status);
            while (connection && IceConnectionStatus(connection) == IceConnectPending)
                IceProcessMessages(connection, nullptr, nullptr);
            if (connection && IceConnectionStatus(connection) == IceConnectAccepted)
                connections.push_back(connection);
        }
    }
}
