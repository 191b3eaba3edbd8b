// What a person's hand does to a widget, as the toolkit reports it.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace acts {

inline void Mouse(QEvent::Type type, QWidget& widget, QPoint place, Qt::MouseButton button,
                  Qt::KeyboardModifiers modifiers = {}) {
    const bool up = type == QEvent::MouseButtonRelease;
    const Qt::MouseButtons held = up ? Qt::MouseButtons() : Qt::MouseButtons(button);
    QMouseEvent event(type, QPointF(place), QPointF(widget.mapToGlobal(place)),
                      type == QEvent::MouseMove ? Qt::NoButton : button, held, modifiers);
    QApplication::sendEvent(&widget, &event);
}

inline void Click(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
                  Qt::KeyboardModifiers modifiers = {}) {
    Mouse(QEvent::MouseButtonPress, widget, place, button, modifiers);
    Mouse(QEvent::MouseButtonRelease, widget, place, button, modifiers);
}

inline void ClickAgain(QWidget& widget, QPoint place) {
    Mouse(QEvent::MouseButtonDblClick, widget, place, Qt::LeftButton);
    Mouse(QEvent::MouseButtonRelease, widget, place, Qt::LeftButton);
}

inline void Drag(QWidget& widget, QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton) {
    Mouse(QEvent::MouseButtonPress, widget, from, button);
    Mouse(QEvent::MouseMove, widget, (from + to) / 2, button);
    Mouse(QEvent::MouseMove, widget, to, button);
    Mouse(QEvent::MouseButtonRelease, widget, to, button);
}

inline void Key(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = {},
                const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(&widget, &release);
}

}  // namespace acts
