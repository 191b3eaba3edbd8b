// Time and waiting on the toolkit's event loop.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <map>
#include <memory>
#include <random>

#include "adapters/qt/gate.h"
#include "platform/event_loop.h"

namespace qt_adapter {

class QtLoop : public platform::EventLoop {
public:
    explicit QtLoop(Gate& gate);

    void PumpEvents() override;
    void Sleep(int milliseconds) override;
    double Timer() override;
    platform::DateTime Now() override;
    double Milliseconds() override;
    double Rnd() override;
    void SetTimer(const void* key, int milliseconds, std::function<void()> tick) override;
    void CancelTimer(const void* key) override;
    void RunUntil(const std::function<bool()>& done) override;

private:
    struct Ticker {
        QTimer timer;
        std::shared_ptr<std::function<void()>> tick;
    };

    Gate& gate_;
    QElapsedTimer clock_;
    std::mt19937 random_;
    // Tickers stay when cancelled: a handler may cancel the timer that called it.
    std::map<const void*, std::unique_ptr<Ticker>> tickers_;
};

}  // namespace qt_adapter
