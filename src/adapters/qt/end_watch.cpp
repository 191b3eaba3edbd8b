#include "adapters/qt/end_watch.h"

#include <QGuiApplication>
#include <QSemaphore>
#include <QSocketNotifier>
#include <QThread>
#include <cstdio>
#include <exception>
#include <utility>

namespace qt_adapter {

namespace {

/// Empty while there is nothing to save.
std::function<void()> saveAtLast;
std::terminate_handler terminateBefore = nullptr;

void SaveOnce() {
    if (const std::function<void()> save = std::exchange(saveAtLast, nullptr)) {
        save();
    }
}

[[noreturn]] void SaveAndTerminate() {
    SaveAtLast();
    terminateBefore();
    std::abort();
}

}  // namespace

void SaveAtLast() {
    if (!qApp || QThread::currentThread() == qApp->thread()) {
        SaveOnce();
        return;
    }
    constexpr int kLongestWait = 5000;  // ms
    const auto saved = std::make_shared<QSemaphore>();
    QMetaObject::invokeMethod(
        qApp,
        [saved] {
            SaveOnce();
            saved->release();
        },
        Qt::QueuedConnection);
    saved->tryAcquire(1, kLongestWait);
}

EndWatch::EndWatch(Gate& gate, Ending ending) : gate_(gate), ending_(std::move(ending)) {
    if (signals_.Readable() >= 0) {
        notifier_ = std::make_unique<QSocketNotifier>(signals_.Readable(), QSocketNotifier::Read);
        connect(notifier_.get(), &QSocketNotifier::activated, this, [this] { SignalCame(); });
    }
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { Save(); },
        Qt::DirectConnection);
    qApp->installEventFilter(this);
    saveAtLast = [this] { Save(); };
    terminateBefore = std::set_terminate(SaveAndTerminate);
}

EndWatch::~EndWatch() {
    std::set_terminate(terminateBefore);
    saveAtLast = nullptr;
}

bool EndWatch::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qApp && event->type() == QEvent::Quit) {
        Leave();
        return true;
    }
    return false;
}

void EndWatch::SignalCame() {
    // While the logic cannot be reached the signal stays where it is, and comes again.
    if (Leave()) {
        signals_.Drain();
    }
}

bool EndWatch::Leave() {
    if (!alone_) {
        alone_ = std::make_unique<Gate::Unattended>(gate_);
    }
    if (gate_.Leaving()) {
        return true;
    }
    const bool called = gate_.Guarded(ending_.leave);
    if (called) {
        gate_.CloseBoxes();
    }
    return called;
}

void EndWatch::Save() {
    const Gate::Unattended alone(gate_);
    try {
        ending_.save();
    } catch (...) {
        std::fputs("parapico: the state could not be saved\n", stderr);
    }
}

}  // namespace qt_adapter
