#include "adapters/qt/panes_binding.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>
#include <cstdint>
#include <numeric>

#include "adapters/qt/convert.h"

namespace qt_adapter {

namespace {

constexpr int kKeyStep = 16;     // pixels
constexpr int kGripLength = 36;  // of the mark in the middle of a bar

class PaneBar : public QSplitterHandle {
public:
    PaneBar(Qt::Orientation orientation, PaneSplitter* splitter)
        : QSplitterHandle(orientation, splitter), splitter_(*splitter) {
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_Hover);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool sideways = orientation() == Qt::Horizontal;
        const int key = event->key();
        if (key == (sideways ? Qt::Key_Left : Qt::Key_Up)) {
            splitter_.MoveBar(*this, -kKeyStep);
        } else if (key == (sideways ? Qt::Key_Right : Qt::Key_Down)) {
            splitter_.MoveBar(*this, kKeyStep);
        } else {
            QSplitterHandle::keyPressEvent(event);
        }
    }
    void mouseDoubleClickEvent(QMouseEvent*) override { Q_EMIT splitter_.WantsShares(); }
    void focusInEvent(QFocusEvent*) override { update(); }
    void focusOutEvent(QFocusEvent*) override { update(); }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        QColor grip = palette().color(QPalette::WindowText);
        grip.setAlphaF(underMouse() ? 0.5F : 0.22F);
        painter.setBrush(hasFocus() ? palette().color(QPalette::Highlight) : grip);
        const QSizeF size =
            orientation() == Qt::Horizontal ? QSizeF(3, kGripLength) : QSizeF(kGripLength, 3);
        QRectF mark({0, 0}, size);
        mark.moveCenter(QRectF(rect()).center());
        painter.drawRoundedRect(mark, 1.5, 1.5);
    }

private:
    PaneSplitter& splitter_;
};

QList<int> Numbers(const QString& shares) {
    QList<int> numbers;
    for (const QString& word : shares.split(',', Qt::SkipEmptyParts)) {
        numbers += word.toInt();
    }
    return numbers;
}

}  // namespace

QSplitterHandle* PaneSplitter::createHandle() {
    return new PaneBar(orientation(), this);
}

void PaneSplitter::resizeEvent(QResizeEvent* event) {
    QSplitter::resizeEvent(event);
    Q_EMIT Resized();
}

void PaneSplitter::MoveBar(const QSplitterHandle& handle, int pixels) {
    for (int i = 1; i < count(); ++i) {
        if (this->handle(i) == &handle) {
            const QPoint place = handle.pos();
            moveSplitter((orientation() == Qt::Horizontal ? place.x() : place.y()) + pixels, i);
        }
    }
}

PanesBinding::PanesBinding(model::Panes& panes, PaneSplitter& splitter, const Site& site)
    : ControlBinding(panes, splitter, site), panes_(panes), face_(splitter) {
    connect(&splitter, &QSplitter::splitterMoved, this, [this] { Moved(); });
    connect(&splitter, &PaneSplitter::WantsShares, this,
            [this] { Act([this] { panes_.Move(Text()); }); });
    // What panes had to have at least in a smaller room is forgotten in a larger one.
    connect(&splitter, &PaneSplitter::Resized, this, [this] { SyncOwn(); });
    for (int i = 1; i < splitter.count(); ++i) {
        splitter.handle(i)->setAccessibleName(splitter.accessibleName());
    }
    OrderTabs();
    Sync();
}

void PanesBinding::SyncOwn() {
    if (following_) {
        return;
    }
    QList<int> sizes = Numbers(ToQt(panes_.Sizes()));
    const bool usable = sizes.size() == face_.count() &&
                        std::all_of(sizes.begin(), sizes.end(), [](int size) { return size > 0; });
    if (!usable) {
        sizes = Numbers(face_.property("shares").toString());
    }
    // The splitter shares its room out in their proportion, but first makes each as large as its
    // pane must be: of large numbers the proportion stays.
    constexpr int64_t kWhole = 1000000;
    const int64_t sum = std::accumulate(sizes.begin(), sizes.end(), int64_t{1});
    for (int& size : sizes) {
        size = static_cast<int>(size * kWhole / sum);
    }
    face_.setSizes(sizes);
}

void PanesBinding::Moved() {
    const QScopedValueRollback<bool> guard(following_, true);
    QStringList words;
    for (const int size : face_.sizes()) {
        words += QString::number(size);
    }
    Act([&] { panes_.Move(FromQt(words.join(','))); });
}

/// A bar comes after what stands in front of it.
void PanesBinding::OrderTabs() {
    for (int i = 1; i < face_.count(); ++i) {
        QWidget* const pane = face_.widget(i - 1);
        QWidget* last = nullptr;
        for (QWidget* next = pane->nextInFocusChain(); next != pane;
             next = next->nextInFocusChain()) {
            if (pane->isAncestorOf(next) && next->focusPolicy() & Qt::TabFocus) {
                last = next;
            }
        }
        if (last) {
            QWidget::setTabOrder(last, face_.handle(i));
        }
    }
}

}  // namespace qt_adapter
