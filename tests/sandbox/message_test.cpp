// What counts as a message between program and decoder.
#include "adapters/sandbox/message.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <cstring>

#include "adapters/sandbox/transfer.h"

namespace {

using sandbox::Answer;
using sandbox::Descriptor;
using sandbox::Received;
using sandbox::Request;

struct Pair {
    Pair() {
        int ends[2] = {-1, -1};
        EXPECT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends), 0);
        here = Descriptor(ends[0]);
        there = Descriptor(ends[1]);
    }
    Descriptor here, there;
};

Request GoodRequest() {
    Request request;
    request.task = sandbox::kDecode;
    request.kind = static_cast<uint32_t>(sandbox::Kind::Pcx);
    request.serial = 7;
    return request;
}

bool Accepted(const Request& request, size_t descriptors = 1) {
    return sandbox::ParseRequest(sandbox::BytesOf(request), descriptors).has_value();
}

TEST(Requests, EveryFieldIsChecked) {
    EXPECT_TRUE(Accepted(GoodRequest()));
    EXPECT_FALSE(Accepted(GoodRequest(), 0));
    EXPECT_FALSE(Accepted(GoodRequest(), 2));
    Request request = GoodRequest();
    request.mark = sandbox::kAnswerMark;
    EXPECT_FALSE(Accepted(request));
    for (const auto& [kind, accepted] :
         {std::pair(0u, false), {1u, true}, {18u, true}, {19u, false}, {0x101u, false}}) {
        request = GoodRequest();
        request.kind = kind;
        EXPECT_EQ(Accepted(request), accepted) << kind;
    }
    // 1 GiB of 32-bit pixels is 2^28 of them.
    for (const auto& [width, height, accepted] : {std::tuple(0, 0, true),
                                                  {1, 1, true},
                                                  {16384, 16384, true},
                                                  {16385, 16384, false},
                                                  {0, 5, false},
                                                  {5, 0, false},
                                                  {-1, -1, false},
                                                  {-5, 5, false},
                                                  {INT32_MAX, INT32_MAX, false},
                                                  {1 << 28, 1, true}}) {
        request = GoodRequest();
        request.width = width;
        request.height = height;
        EXPECT_EQ(Accepted(request), accepted) << width << 'x' << height;
    }
    const auto bytes = sandbox::BytesOf(request);
    EXPECT_FALSE(sandbox::ParseRequest(bytes.first(bytes.size() - 1), 1));
    EXPECT_FALSE(sandbox::ParseRequest({}, 1));
}

Answer GoodAnswer() {
    Answer answer;
    answer.serial = 7;
    answer.what = sandbox::kDecoded;
    answer.bitsPerPixel = 24;
    answer.width = 3;
    answer.height = 2;
    return answer;
}

bool Accepted(const Answer& answer, size_t descriptors = 1) {
    return sandbox::ParseAnswer(sandbox::BytesOf(answer), descriptors, GoodRequest()).has_value();
}

TEST(Answers, EveryFieldIsChecked) {
    EXPECT_TRUE(Accepted(GoodAnswer()));
    EXPECT_FALSE(Accepted(GoodAnswer(), 0));
    EXPECT_FALSE(Accepted(GoodAnswer(), 2));
    struct Case {
        uint32_t Answer::*field;
        uint32_t value;
        bool accepted;
    };
    for (const auto& [field, value, accepted] : {Case{&Answer::mark, sandbox::kRequestMark, false},
                                                 {&Answer::serial, 8, false},
                                                 {&Answer::serial, 6, false},
                                                 {&Answer::what, 2, false},
                                                 {&Answer::what, 3, false},
                                                 {&Answer::bitsPerPixel, 0, false},
                                                 {&Answer::bitsPerPixel, 1, true},
                                                 {&Answer::bitsPerPixel, 2, false},
                                                 {&Answer::bitsPerPixel, 4, true},
                                                 {&Answer::bitsPerPixel, 16, true},
                                                 {&Answer::bitsPerPixel, 64, true},
                                                 {&Answer::bitsPerPixel, 0xFFFFFFE8u, false}}) {
        Answer answer = GoodAnswer();
        answer.*field = value;
        EXPECT_EQ(Accepted(answer), accepted) << value;
    }
    for (const auto& [width, height] :
         {std::pair(0, 0), {0, 2}, {3, -2}, {-3, -2}, {65536, 65536}, {INT32_MAX, INT32_MAX}}) {
        Answer answer = GoodAnswer();
        answer.width = width;
        answer.height = height;
        EXPECT_FALSE(Accepted(answer)) << width << 'x' << height;
    }
}

TEST(Answers, AFailureHoldsNothing) {
    Answer failed;
    failed.serial = 7;
    EXPECT_TRUE(Accepted(failed, 0));
    EXPECT_FALSE(Accepted(failed, 1));
    failed.width = 1;
    EXPECT_FALSE(Accepted(failed, 0));
}

TEST(Answers, OnlyDrawingsAreMeasured) {
    Request request = GoodRequest();
    request.task = sandbox::kMeasure;
    EXPECT_FALSE(Accepted(request));
    request.kind = static_cast<uint32_t>(sandbox::Kind::Svg);
    EXPECT_TRUE(Accepted(request));
    Answer answer;
    answer.serial = 7;
    answer.what = sandbox::kMeasured;
    // However large: it is only a size.
    answer.width = answer.height = INT32_MAX;
    EXPECT_TRUE(sandbox::ParseAnswer(sandbox::BytesOf(answer), 0, request));
    EXPECT_FALSE(sandbox::ParseAnswer(sandbox::BytesOf(answer), 1, request));
    EXPECT_FALSE(sandbox::ParseAnswer(sandbox::BytesOf(GoodAnswer()), 1, request));
    answer.height = 0;
    EXPECT_FALSE(sandbox::ParseAnswer(sandbox::BytesOf(answer), 0, request));
    request.width = request.height = 5;
    EXPECT_FALSE(Accepted(request));
    request.width = request.height = 0;
    request.task = 3;
    EXPECT_FALSE(Accepted(request));
}

TEST(Socket, AMessageComesWithItsFile) {
    const Pair pair;
    const Descriptor file(open("/dev/null", O_RDONLY | O_CLOEXEC));
    ASSERT_TRUE(sandbox::Send(pair.here.Get(), sandbox::BytesOf(GoodRequest()), file.Get()));
    const Received received = sandbox::Receive(pair.there.Get(), 1000);
    ASSERT_EQ(received.state, Received::State::Message);
    EXPECT_TRUE(sandbox::ParseRequest(received.Bytes(), received.descriptors.size()));
    ASSERT_EQ(received.descriptors.size(), 1u);
    EXPECT_NE(received.descriptors[0].Get(), file.Get());
    EXPECT_NE(fcntl(received.descriptors[0].Get(), F_GETFD) & FD_CLOEXEC, 0);
}

TEST(Socket, NothingAndTheEndAreToldApart) {
    Pair pair;
    EXPECT_EQ(sandbox::Receive(pair.there.Get(), 0).state, Received::State::Nothing);
    EXPECT_EQ(sandbox::Receive(pair.there.Get(), 5).state, Received::State::Nothing);
    pair.here.Close();
    EXPECT_EQ(sandbox::Receive(pair.there.Get(), -1).state, Received::State::Gone);
    // No signal ends this test.
    EXPECT_FALSE(sandbox::Send(pair.there.Get(), sandbox::BytesOf(GoodRequest()), -1));
    EXPECT_EQ(sandbox::Receive(-1, 0).state, Received::State::Gone);
}

TEST(Socket, AMessageTooLongIsNone) {
    const Pair pair;
    const std::array<uint8_t, 65> bytes{};
    ASSERT_TRUE(sandbox::Send(pair.here.Get(), bytes, -1));
    const Received received = sandbox::Receive(pair.there.Get(), 1000);
    EXPECT_EQ(received.state, Received::State::Message);
    EXPECT_EQ(received.Bytes().size(), 0u);
}

TEST(Socket, WhoDoesNotReadIsNotWaitedFor) {
    const Pair pair;
    int sent = 0;
    while (sent < 100000 && sandbox::Send(pair.here.Get(), sandbox::BytesOf(GoodRequest()), -1)) {
        ++sent;
    }
    EXPECT_GT(sent, 0);
    EXPECT_LT(sent, 100000);
}

TEST(Pixels, ComeBackOpaque) {
    const std::array<uint32_t, 6> pixels = {0xFF000001, 0x00000002, 0x80000003,
                                            0xFF000004, 0xFF000005, 0xFFFFFFFF};
    const Descriptor memory = sandbox::MakePixels(pixels);
    const platform::BitmapPtr bitmap = sandbox::ReadPixels(memory.Get(), {3, 2});
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(bitmap->width, 3);
    EXPECT_EQ(bitmap->height, 2);
    EXPECT_THAT(bitmap->pixels, testing::ElementsAre(0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004,
                                                     0xFF000005, 0xFFFFFFFF));
    // As many pixels, and so another picture; that is the decoder's to say.
    EXPECT_TRUE(sandbox::ReadPixels(memory.Get(), {6, 1}));
    for (const platform::Size size :
         {platform::Size{3, 3}, {3, 1}, {0, 0}, {-3, -2}, {65536, 65536}}) {
        EXPECT_FALSE(sandbox::ReadPixels(memory.Get(), size));
    }
}

TEST(Pixels, AreReadFromMemoryOnly) {
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    const Descriptor in(ends[0]), out(ends[1]), folder(open("/", O_RDONLY | O_CLOEXEC));
    for (const int descriptor : {in.Get(), folder.Get(), -1}) {
        EXPECT_FALSE(sandbox::ReadPixels(descriptor, {1, 1}));
    }
}

TEST(Files, AreReadWholeWhateverTheirOffset) {
    const std::array<uint32_t, 2> words = {0x04030201, 0x08070605};
    const Descriptor file = sandbox::MakePixels(words);
    ASSERT_EQ(lseek(file.Get(), 5, SEEK_SET), 5);
    const auto bytes = sandbox::ReadFile(file.Get());
    ASSERT_TRUE(bytes);
    EXPECT_THAT(*bytes, testing::ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
    EXPECT_EQ(lseek(file.Get(), 0, SEEK_CUR), 5);
}

TEST(Files, EmptyHugeAndOtherOnesAreNot) {
    const Descriptor empty = sandbox::MakePixels({});
    EXPECT_FALSE(sandbox::ReadFile(empty.Get()));
    // Only its length is huge; nothing of it is read.
    ASSERT_EQ(ftruncate(empty.Get(), sandbox::kMostFileBytes + 1), 0);
    EXPECT_FALSE(sandbox::ReadFile(empty.Get()));
    const Descriptor device(open("/dev/zero", O_RDONLY | O_CLOEXEC));
    EXPECT_FALSE(sandbox::ReadFile(device.Get()));
    EXPECT_FALSE(sandbox::ReadFile(-1));
}

}  // namespace
