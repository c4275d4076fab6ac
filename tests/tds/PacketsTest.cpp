#include "support/tds/Packets.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <unistd.h>
#include <thread>

namespace kavelin::test::tds {
namespace {

using namespace std::string_view_literals;

// Both ends of a connection: the server's, and the client's as a bare handle.
class Packets : public testing::Test {
  protected:
    Packets()
    {
        int handles[2] = {};
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, handles), 0);
        socket = std::make_unique<Socket>(handles[0]);
        client = handles[1];
    }

    ~Packets() override { ::close(client); }

    void Send(std::string_view bytes)
    {
        EXPECT_EQ(::send(client, bytes.data(), bytes.size(), 0), static_cast<ssize_t>(bytes.size()));
    }

    Bytes Receive()
    {
        char buffer[4096];
        const ssize_t count = ::recv(client, buffer, sizeof buffer, MSG_DONTWAIT);
        return Bytes(buffer, count > 0 ? static_cast<std::size_t>(count) : 0);
    }

    std::unique_ptr<Socket> socket;
    int client = -1;
};

TEST_F(Packets, MakeAMessageTogether)
{
    Send(
        "\x01\x00\x00\x0B\x00\x00\x01\x00"
        "abc"sv);
    Send(
        "\x01\x01\x00\x0A\x00\x00\x02\x00"
        "de"sv);
    const Message message = socket->Read();
    EXPECT_EQ(message.type, MessageType::Batch);
    EXPECT_EQ(message.content, "abcde");
}

TEST_F(Packets, ShorterThanTheirHeadAreRefused)
{
    Send("\x01\x01\x00\x07\x00\x00\x01\x00"sv);
    EXPECT_THROW(socket->Read(), ProtocolError);
}

TEST_F(Packets, EndWithTheConnection)
{
    Send("\x01\x00\x00\x0B\x00"sv);
    ::shutdown(client, SHUT_WR);
    EXPECT_THROW(socket->Read(), ProtocolError);
}

TEST_F(Packets, AreReadNoMoreOnceDropped)
{
    std::thread other([this] { socket->Drop(); });
    EXPECT_THROW(socket->Read(), ProtocolError);
    other.join();
    EXPECT_THROW(socket->Write("x"), ProtocolError);
}

TEST_F(Packets, OfAnAnswerHaveTheAgreedSize)
{
    Answer answer(*socket, 12);
    answer.Tail() = "abcdefghi";
    answer.Finish();
    EXPECT_EQ(Receive(),
              "\x04\x00\x00\x0C\x00\x00\x01\x00"
              "abcd"
              "\x04\x00\x00\x0C\x00\x00\x02\x00"
              "efgh"
              "\x04\x01\x00\x09\x00\x00\x03\x00"
              "i"sv);
}

TEST_F(Packets, OfAnAnswerGoOutAsTheyFill)
{
    Answer answer(*socket, 12);
    answer.Tail() = "abcd";
    answer.SendFull();
    EXPECT_EQ(Receive(), "");  // it may be the last
    answer.Tail() += "e";
    answer.SendFull();
    EXPECT_EQ(Receive().size(), 12u);
    EXPECT_EQ(answer.Tail(), "e");
}

}  // namespace
}  // namespace kavelin::test::tds
