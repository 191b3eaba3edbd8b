#include "adapters/qt/gate.h"

#include <QDialog>

namespace qt_adapter {

void Gate::Guarded(const std::function<void()>& call) {
    if (Leaving() || muted_ > 0) {
        return;
    }
    try {
        call();
    } catch (...) {
        pending_ = std::current_exception();
        // Innermost first; each ends its own loop once control is back in it.
        const std::vector<QDialog*> open = boxes_;
        for (auto box = open.rbegin(); box != open.rend(); ++box) {
            (*box)->reject();
        }
    }
}

void Gate::Wait(const std::function<void()>& wait) {
    Check();
    ++waits_;
    wait();
    --waits_;
    Check();
}

int Gate::Exec(QDialog& dialog) {
    Check();
    boxes_.push_back(&dialog);
    ++waits_;
    const int result = dialog.exec();
    --waits_;
    boxes_.pop_back();
    Check();
    return result;
}

void Gate::Check() {
    if (!pending_) {
        return;
    }
    const std::exception_ptr thrown = pending_;
    if (waits_ == 0) {
        // Nothing of the toolkit lies below: the exception reaches the outermost frame.
        pending_ = nullptr;
    }
    std::rethrow_exception(thrown);
}

}  // namespace qt_adapter
