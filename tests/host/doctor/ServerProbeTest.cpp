#include "host/doctor/ServerProbe.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <string>
#include <string_view>
#include <thread>

namespace kavelin::host {
namespace {

using namespace std::chrono_literals;

// A socket of its own port on 127.0.0.1.
class LocalSocket {
  public:
    explicit LocalSocket(int kind) : lngHandle(::socket(AF_INET, kind, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof(address);
        if (::bind(lngHandle, reinterpret_cast<sockaddr*>(&address), length) != 0 ||
            ::getsockname(lngHandle, reinterpret_cast<sockaddr*>(&address), &length) != 0)
            ADD_FAILURE() << "no free port";
        lngPort = ::ntohs(address.sin_port);
    }
    ~LocalSocket() { ::close(lngHandle); }

    int Handle() const { return lngHandle; }
    int Port() const { return lngPort; }

  private:
    int lngHandle;
    int lngPort = 0;
};

// Answers one question about an instance.
class Browser {
  public:
    explicit Browser(std::string answer)
        : objThread([this, answer = std::move(answer)] { AnswerOnce(answer); })
    {
    }
    ~Browser() { objThread.join(); }

    int Port() const { return objSocket.Port(); }
    const std::string& Question() const { return strQuestion; }

  private:
    void AnswerOnce(const std::string& answer)
    {
        char text[100];
        sockaddr_in from{};
        socklen_t length = sizeof(from);
        const ssize_t got = ::recvfrom(objSocket.Handle(), text, sizeof(text), 0,
                                       reinterpret_cast<sockaddr*>(&from), &length);
        strQuestion.assign(text, static_cast<std::size_t>(got));
        ::sendto(objSocket.Handle(), answer.data(), answer.size(), 0, reinterpret_cast<sockaddr*>(&from),
                 length);
    }

    LocalSocket objSocket{SOCK_DGRAM};
    std::string strQuestion;
    std::thread objThread;
};

TEST(ServerProbe, ReachesAPortWhereSomebodyListens)
{
    const LocalSocket server(SOCK_STREAM);
    ASSERT_EQ(::listen(server.Handle(), 1), 0);
    const ProbeResult result = ProbeServer({"127.0.0.1", server.Port(), ""});
    EXPECT_EQ(result.reach, Reach::Answers);
    EXPECT_EQ(result.address, "127.0.0.1");
    EXPECT_EQ(result.port, server.Port());
}

TEST(ServerProbe, TriesTheUsualPortWhereNoneIsNamed)
{
    const LocalSocket server(SOCK_STREAM);
    ASSERT_EQ(::listen(server.Handle(), 1), 0);
    ProbeLimits limits;
    limits.usualPort = server.Port();
    EXPECT_EQ(ProbeServer({"localhost", 0, ""}, limits).reach, Reach::Answers);
}

TEST(ServerProbe, TellsAClosedPort)
{
    int closed = 0;
    {
        const LocalSocket gone(SOCK_STREAM);
        closed = gone.Port();
    }
    EXPECT_EQ(ProbeServer({"127.0.0.1", closed, ""}).reach, Reach::Refused);
}

TEST(ServerProbe, TellsANameWithoutAnAddress)
{
    EXPECT_EQ(ProbeServer({"no-such-machine.invalid", 1433, ""}).reach, Reach::UnknownName);
    EXPECT_EQ(ProbeServer({"no-such-machine.invalid", 0, "BOOKS"}).reach, Reach::UnknownName);
}

TEST(ServerProbe, DoesNotWaitLongerThanItsPatience)
{
    // A queue for one connection that is full: the next one gets no answer.
    const LocalSocket server(SOCK_STREAM);
    ASSERT_EQ(::listen(server.Handle(), 0), 0);
    ProbeLimits limits;
    limits.patience = 200ms;
    Reach last = Reach::Answers;
    std::vector<int> kept;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
    address.sin_port = ::htons(static_cast<std::uint16_t>(server.Port()));
    for (int i = 0; i < 4; ++i) {
        kept.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0));
        ::connect(kept.back(), reinterpret_cast<sockaddr*>(&address), sizeof(address));
    }
    const auto start = std::chrono::steady_clock::now();
    last = ProbeServer({"127.0.0.1", server.Port(), ""}, limits).reach;
    const auto took = std::chrono::steady_clock::now() - start;
    for (const int handle : kept)
        ::close(handle);
    EXPECT_EQ(last, Reach::Silent);
    EXPECT_LT(took, 5s);
}

TEST(ServerProbe, AsksTheMachineForThePortOfAnInstance)
{
    const LocalSocket server(SOCK_STREAM);
    ASSERT_EQ(::listen(server.Handle(), 1), 0);
    std::string question;
    ProbeResult result;
    {
        const Browser browser("\x05xxServerName;BOX;InstanceName;BOOKS;IsClustered;No;Version;10.50;tcp;" +
                              std::to_string(server.Port()) + ";;");
        ProbeLimits limits;
        limits.browserPort = browser.Port();
        result = ProbeServer({"127.0.0.1", 0, "BOOKS"}, limits);
        question = browser.Question();
    }
    EXPECT_EQ(result.reach, Reach::Answers);
    EXPECT_EQ(result.port, server.Port());
    EXPECT_EQ(question, std::string("\x04"
                                    "BOOKS\0",
                                    7));
}

TEST(ServerProbe, TellsAnInstanceThatNobodyKnows)
{
    const LocalSocket silent(SOCK_DGRAM);
    ProbeLimits limits;
    limits.patience = 100ms;
    limits.browserPort = silent.Port();
    EXPECT_EQ(ProbeServer({"127.0.0.1", 0, "BOOKS"}, limits).reach, Reach::NoInstance);
}

}  // namespace
}  // namespace kavelin::host
