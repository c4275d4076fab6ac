#include "support/tds/TdsServer.h"

#include "embedded/EmbeddedAccount.h"
#include "frame/Errors.h"
#include "support/tds/Session.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>
#include <atomic>
#include <list>
#include <thread>

namespace kavelin::test::tds {

namespace {

int ListenOn(std::uint16_t port)
{
    const int handle = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    ::setsockopt(handle, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::bind(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(handle, SOMAXCONN) != 0) {
        ::close(handle);
        throw Error("The port " + std::to_string(port) + " cannot be served.");
    }
    return handle;
}

std::uint16_t PortOf(int handle)
{
    sockaddr_in address{};
    socklen_t size = sizeof address;
    ::getsockname(handle, reinterpret_cast<sockaddr*>(&address), &size);
    return ntohs(address.sin_port);
}

}  // namespace

class TdsServer::Listener {
  public:
    explicit Listener(ServerOptions options)
    {
        objAccount = embedded::OpenAccount(options.account);
        intHandle = ListenOn(options.port);
        intPort = PortOf(intHandle);
        objState.options = std::move(options);
        objThread = std::thread([this] { Listen(); });
    }

    ~Listener() { Stop(); }

    void Stop()
    {
        if (!objThread.joinable())
            return;
        blnStopping = true;
        ::shutdown(intHandle, SHUT_RDWR);
        objThread.join();
        ::close(intHandle);
        for (Client& client : lstClients)
            client.session.Drop();
        for (Client& client : lstClients)
            client.thread.join();
        lstClients.clear();
        objAccount.reset();
    }

    std::uint16_t Port() const { return intPort; }
    ServerState& State() { return objState; }

  private:
    struct Client {
        Session session;
        std::thread thread;
        std::atomic<bool> done = false;

        Client(int handle, ServerState& state) : session(handle, state)
        {
            thread = std::thread([this] {
                session.Run();
                done = true;
            });
        }
    };

    void Listen()
    {
        while (!blnStopping) {
            const int handle = ::accept4(intHandle, nullptr, nullptr, SOCK_CLOEXEC);
            if (handle < 0)
                continue;
            const int on = 1;
            ::setsockopt(handle, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
            lstClients.remove_if([](Client& client) {
                if (client.done)
                    client.thread.join();
                return client.done.load();
            });
            lstClients.emplace_back(handle, objState);
        }
    }

    ServerState objState;
    std::shared_ptr<embedded::EmbeddedAccount> objAccount;
    int intHandle = -1;
    std::uint16_t intPort = 0;
    std::atomic<bool> blnStopping = false;
    std::list<Client> lstClients;
    std::thread objThread;
};

TdsServer::TdsServer(ServerOptions options) : objListener(std::make_unique<Listener>(std::move(options))) {}

TdsServer::~TdsServer() = default;

std::uint16_t TdsServer::Port() const
{
    return objListener->Port();
}

void TdsServer::Stop()
{
    objListener->Stop();
}

void TdsServer::Order(Fault fault)
{
    objListener->State().faults.Order(std::move(fault));
}

void TdsServer::ClearFaults()
{
    objListener->State().faults.Clear();
}

void TdsServer::Answer(std::string_view batch, OwnResult result)
{
    objListener->State().Answer(batch, std::move(result));
}

std::vector<std::string> TdsServer::Batches() const
{
    return objListener->State().Batches();
}

std::vector<LoginMessage> TdsServer::Logins() const
{
    return objListener->State().Logins();
}

const ServerOptions& TdsServer::Options() const
{
    return objListener->State().options;
}

}  // namespace kavelin::test::tds
