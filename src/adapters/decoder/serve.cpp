#include "adapters/decoder/serve.h"

#include <exception>

#include "adapters/decoder/limits.h"
#include "adapters/door/transfer.h"

namespace decoder {

namespace {

/// What the program would not believe is not sent.
bool Sound(const Picture& picture) {
    return door::FitsBound(picture.size) &&
           picture.pixels.size() ==
               static_cast<size_t>(picture.size.width) * static_cast<size_t>(picture.size.height);
}

std::optional<Picture> DecodeFile(const door::Request& request, int file,
                                  const DecodeFunction& decode) {
    try {
        const auto bytes = door::ReadFile(file);
        auto picture = bytes ? decode(static_cast<door::Kind>(request.kind), *bytes,
                                      {request.width, request.height})
                             : std::nullopt;
        return picture && Sound(*picture) ? std::move(picture) : std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

bool AnswerOne(int socket, const door::Request& request, int file, const DecodeFunction& decode) {
    door::Answer answer;
    answer.serial = request.serial;
    door::Descriptor pixels;
    if (const auto picture = DecodeFile(request, file, decode)) {
        pixels = door::MakePixels(picture->pixels);
        if (pixels.Valid()) {
            answer.decoded = 1;
            answer.bitsPerPixel = static_cast<uint32_t>(picture->bitsPerPixel);
            answer.width = picture->size.width;
            answer.height = picture->size.height;
        }
    }
    return door::Send(socket, door::BytesOf(answer), pixels.Get());
}

}  // namespace

int Serve(int socket, door::Role role, const DecodeFunction& decode) {
    constexpr int kForever = -1;
    while (true) {
        const door::Received received = door::Receive(socket, kForever);
        if (received.state == door::Received::State::Gone) {
            return 0;
        }
        const auto request = door::ParseRequest(received.Bytes(), received.descriptors.size());
        if (!request || door::RoleOf(static_cast<door::Kind>(request->kind)) != role) {
            return 1;
        }
        AllowProcessorTime(kPictureSeconds);
        if (!AnswerOne(socket, *request, received.descriptors[0].Get(), decode)) {
            return 1;
        }
    }
}

}  // namespace decoder
