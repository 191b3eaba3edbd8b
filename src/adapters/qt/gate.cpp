#include "adapters/qt/gate.h"

#include <QApplication>
#include <QDialog>

namespace qt_adapter {

bool Gate::Guarded(const std::function<void()>& call) {
    if (Leaving() || muted_ > 0) {
        return false;
    }
    try {
        call();
    } catch (...) {
        pending_ = std::current_exception();
        CloseBoxes();
    }
    return true;
}

void Gate::CloseBoxes() {
    // Menus that a box opened, and boxes that its own parts did, have loops of their own.
    while (QWidget* popup = QApplication::activePopupWidget()) {
        if (!popup->close()) {
            break;
        }
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* box = qobject_cast<QDialog*>(window);
        if (box && box->isVisible() && box->isModal()) {
            box->reject();
        }
    }
    // Those of the desktop are no widgets. Innermost first; each ends its own loop once control is
    // back in it.
    const std::vector<QDialog*> open = boxes_;
    for (auto box = open.rbegin(); box != open.rend(); ++box) {
        (*box)->reject();
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
    if (NobodyThere()) {
        return QDialog::Rejected;
    }
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
