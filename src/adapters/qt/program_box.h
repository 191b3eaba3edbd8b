// The question before a show starts a program. It cannot be answered by accident.
#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <vector>

#include "platform/program_answer.h"

class QPushButton;

namespace qt_adapter {

/// Where a piece of the show lay a button may come up, and a press that was meant for the piece
/// land on it. So the buttons are dead until a second has passed without any key or press since the
/// box stood on the screen. Enter is "no", whatever has the focus; letters count with Alt only.
/// Closing the box means no, at any time.
class ProgramBox : public QDialog {
public:
    /// Milliseconds that never fall back.
    using Clock = std::function<double()>;
    static constexpr double kDeadMilliseconds = 1000;

    ProgramBox(const platform::ProgramQuestion& question, QWidget* parent, Clock clock = {});
    ~ProgramBox() override;

    platform::ProgramAnswer Answer() const { return answer_; }
    /// Whether the buttons can be pressed by now. Looks at the clock; a timer does, too.
    bool LooksAlive();

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPushButton* AddButton(const QString& caption, platform::ProgramAnswer answer);
    void BeginDeath();

    Clock clock_;
    QElapsedTimer ownClock_;
    QTimer timer_;
    double since_ = 0;
    bool alive_ = false;
    bool painted_ = false;
    std::vector<QPushButton*> buttons_;
    QPushButton* no_ = nullptr;
    platform::ProgramAnswer answer_ = platform::ProgramAnswer::No;
};

}  // namespace qt_adapter
