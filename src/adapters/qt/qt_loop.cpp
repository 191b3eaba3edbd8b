#include "adapters/qt/qt_loop.h"

#include <QCoreApplication>
#include <QDateTime>
#include <algorithm>
#include <chrono>
#include <thread>

namespace qt_adapter {

namespace {

void ProcessOnce(QEventLoop::ProcessEventsFlags flags) {
    QCoreApplication::processEvents(flags);
    // Processing by hand leaves these lying.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

QtLoop::QtLoop(Gate& gate)
    : gate_(gate), random_(static_cast<unsigned>(QDateTime::currentMSecsSinceEpoch())) {
    clock_.start();
}

void QtLoop::PumpEvents() {
    // Twice: what handlers change in the first round is painted in the second.
    gate_.Wait([this] {
        ProcessOnce(QEventLoop::AllEvents);
        if (!gate_.Leaving()) {
            ProcessOnce(QEventLoop::AllEvents);
        }
    });
}

void QtLoop::Sleep(int milliseconds) {
    gate_.Check();
    if (milliseconds <= 0) {
        std::this_thread::yield();
    } else {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
}

double QtLoop::Timer() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

platform::DateTime QtLoop::Now() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return platform::FromCalendar(
        {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()});
}

double QtLoop::Milliseconds() {
    return static_cast<double>(clock_.nsecsElapsed()) / 1e6;
}

double QtLoop::Rnd() {
    return static_cast<double>(random_()) / 4294967296.0;
}

void QtLoop::SetTimer(const void* key, int milliseconds, std::function<void()> tick) {
    std::unique_ptr<Ticker>& ticker = tickers_[key];
    if (!ticker) {
        ticker = std::make_unique<Ticker>();
        ticker->timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&ticker->timer, &QTimer::timeout, [this, raw = ticker.get()] {
            // Held here, as the handler may set its own timer anew.
            const std::shared_ptr<std::function<void()>> held = raw->tick;
            gate_.Guarded([&] { (*held)(); });
        });
    }
    ticker->tick = std::make_shared<std::function<void()>>(std::move(tick));
    ticker->timer.start(std::max(1, milliseconds));
}

void QtLoop::CancelTimer(const void* key) {
    const auto found = tickers_.find(key);
    if (found != tickers_.end()) {
        found->second->timer.stop();
    }
}

void QtLoop::RunUntil(const std::function<bool()>& done) {
    gate_.Wait([&] {
        bool finished = false;
        // `done` is the logic's and may throw as any handler does.
        const auto ask = [&] { gate_.Guarded([&] { finished = done(); }); };
        for (ask(); !finished && !gate_.Leaving(); ask()) {
            ProcessOnce(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        }
    });
}

}  // namespace qt_adapter
