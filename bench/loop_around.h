// Another event loop as it is, for benchmarks that look at what goes through it.
#pragma once

#include <functional>
#include <utility>

#include "platform/event_loop.h"

class LoopAround : public platform::EventLoop {
public:
    explicit LoopAround(platform::EventLoop& loop) : loop_(loop) {}

    void PumpEvents() override { loop_.PumpEvents(); }
    void Sleep(int milliseconds) override { loop_.Sleep(milliseconds); }
    double Timer() override { return loop_.Timer(); }
    platform::DateTime Now() override { return loop_.Now(); }
    double Milliseconds() override { return loop_.Milliseconds(); }
    double Rnd() override { return loop_.Rnd(); }
    void SetTimer(const void* key, int milliseconds, std::function<void()> tick) override {
        loop_.SetTimer(key, milliseconds, std::move(tick));
    }
    void CancelTimer(const void* key) override { loop_.CancelTimer(key); }
    void RunUntil(const std::function<bool()>& done) override { loop_.RunUntil(done); }

private:
    platform::EventLoop& loop_;
};
