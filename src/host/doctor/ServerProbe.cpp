#include "host/doctor/ServerProbe.h"

#include "frame/Text.h"

#include <fcntl.h>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <memory>
#include <optional>
#include <string_view>

namespace kavelin::host {

namespace {

using Addresses = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

class Socket {
  public:
    Socket(const addrinfo& address, int kind) : lngHandle(::socket(address.ai_family, kind | SOCK_CLOEXEC, 0))
    {
        if (lngHandle >= 0)
            ::fcntl(lngHandle, F_SETFL, O_NONBLOCK);
    }
    ~Socket()
    {
        if (lngHandle >= 0)
            ::close(lngHandle);
    }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    int Handle() const { return lngHandle; }

    bool WaitFor(short what, std::chrono::milliseconds patience) const
    {
        pollfd state{lngHandle, what, 0};
        return ::poll(&state, 1, static_cast<int>(patience.count())) == 1;
    }

  private:
    int lngHandle;
};

Addresses Resolve(const std::string& host, int port, int kind)
{
    addrinfo hints{};
    hints.ai_socktype = kind;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found) != 0)
        found = nullptr;
    return {found, &freeaddrinfo};
}

std::string Digits(const addrinfo& address)
{
    char text[NI_MAXHOST] = "";
    ::getnameinfo(address.ai_addr, address.ai_addrlen, text, sizeof(text), nullptr, 0, NI_NUMERICHOST);
    return text;
}

Reach Connect(const addrinfo& address, std::chrono::milliseconds patience)
{
    const Socket socket(address, SOCK_STREAM);
    if (socket.Handle() < 0)
        return Reach::Silent;
    if (::connect(socket.Handle(), address.ai_addr, address.ai_addrlen) == 0)
        return Reach::Answers;
    int error = errno;
    if (error == EINPROGRESS) {
        if (!socket.WaitFor(POLLOUT, patience))
            return Reach::Silent;
        socklen_t length = sizeof(error);
        ::getsockopt(socket.Handle(), SOL_SOCKET, SO_ERROR, &error, &length);
    }
    return error == 0 ? Reach::Answers : error == ECONNREFUSED ? Reach::Refused : Reach::Silent;
}

// The port in "ServerName;BOX;InstanceName;SQL2;IsClustered;No;Version;10.0;tcp;49152;;".
std::optional<int> PortIn(std::string_view answer)
{
    const std::vector<std::string> words = Split(answer, ";");
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
        int port = 0;
        const std::string& digits = words[i + 1];
        if (EqualsNoCase(words[i], "tcp") &&
            std::from_chars(digits.data(), digits.data() + digits.size(), port).ec == std::errc() && port > 0)
            return port;
    }
    return std::nullopt;
}

// Asks the machine's browser of instances: a 4 and the name there, an answer behind three bytes back.
std::optional<int> InstancePort(const addrinfo& browser, const std::string& instance,
                                std::chrono::milliseconds patience)
{
    const Socket socket(browser, SOCK_DGRAM);
    const std::string question = "\x04" + instance + std::string(1, '\0');
    char answer[4096];
    if (socket.Handle() < 0 || ::connect(socket.Handle(), browser.ai_addr, browser.ai_addrlen) != 0 ||
        ::send(socket.Handle(), question.data(), question.size(), 0) < 0 || !socket.WaitFor(POLLIN, patience))
        return std::nullopt;
    const ssize_t length = ::recv(socket.Handle(), answer, sizeof(answer), 0);
    return length > 3 ? PortIn(std::string_view(answer + 3, static_cast<std::size_t>(length) - 3))
                      : std::nullopt;
}

}  // namespace

ProbeResult ProbeServer(const odbc::ServerAddress& server, const ProbeLimits& limits)
{
    ProbeResult result;
    result.port = server.port != 0 ? server.port : limits.usualPort;
    if (server.port == 0 && !server.instance.empty()) {
        const Addresses browsers = Resolve(server.host, limits.browserPort, SOCK_DGRAM);
        if (!browsers)
            return {Reach::UnknownName, 0, ""};
        std::optional<int> port;
        for (const addrinfo* browser = browsers.get(); browser && !port; browser = browser->ai_next)
            port = InstancePort(*browser, server.instance, limits.patience);
        if (!port)
            return {Reach::NoInstance, 0, Digits(*browsers)};
        result.port = *port;
    }

    const Addresses addresses = Resolve(server.host, result.port, SOCK_STREAM);
    if (!addresses)
        return {Reach::UnknownName, result.port, ""};
    for (const addrinfo* address = addresses.get(); address; address = address->ai_next) {
        result.address = Digits(*address);
        result.reach = Connect(*address, limits.patience);
        if (result.reach == Reach::Answers)
            break;
    }
    return result;
}

}  // namespace kavelin::host
