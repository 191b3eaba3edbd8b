// Labels, frames, and boxes for text.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>

#include "adapters/qt/control_binding.h"
#include "model/controls.h"

namespace qt_adapter {

class LabelBinding : public ControlBinding {
public:
    LabelBinding(model::Label& label, QLabel& widget, const Site& site);

protected:
    void SyncOwn() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    int UnitsPerPixel() const override;

private:
    void ShowWords();
    void TakeLook();

    model::Label& label_;
    QLabel& face_;
    bool onCanvas_;
    bool cut_;        // words that are too long lose their middle ("elided")
    QTimer passing_;  // words go when it ends ("passes", milliseconds)
    QString shown_;   // whole
};

class FrameBinding : public ControlBinding {
public:
    FrameBinding(model::Frame& frame, QGroupBox& widget, const Site& site);

protected:
    void SyncOwn() override;

private:
    model::Frame& frame_;
    QGroupBox& face_;
};

/// Lines end with CR LF in the model. Files that are dragged over the box go to the window;
/// texts can be dropped into it.
class TextBinding : public ControlBinding {
public:
    TextBinding(model::TextBox& box, QWidget& widget, const Site& site);

protected:
    virtual QString Shown() const = 0;
    virtual void Show(const QString& content) = 0;
    /// A person changed what is shown.
    void Typed();
    void SyncOwn() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    model::TextBox& box_;
    bool showing_ = false;  // the program's own change is none of a person's
};

class LineBinding : public TextBinding {
public:
    LineBinding(model::TextBox& box, QLineEdit& widget, const Site& site);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    QString Shown() const override { return face_.text(); }
    void Show(const QString& content) override { face_.setText(content); }

private:
    QLineEdit& face_;
};

class LinesBinding : public TextBinding {
public:
    LinesBinding(model::TextBox& box, QPlainTextEdit& widget, const Site& site);

protected:
    QString Shown() const override { return face_.toPlainText().replace('\n', "\r\n"); }
    void Show(const QString& content) override { face_.setPlainText(content); }

private:
    QPlainTextEdit& face_;
};

}  // namespace qt_adapter
