// What stands in a list's view where it has no rows.
#pragma once

#include <QAbstractScrollArea>
#include <QString>
#include <QWidget>

namespace qt_adapter {

/// A shape, a line that stands out, and words below it, in the middle of the view. What has no room
/// is left out: first the shape, then the frame.
class EmptyHint : public QWidget {
    Q_OBJECT

public:
    /// The view owns it. It says nothing yet.
    explicit EmptyHint(QAbstractScrollArea& view);

    /// The first line of `words` stands out; without words nothing is seen. `glyph`: name of a
    /// shape, or empty.
    void Say(const QString& words, const QString& glyph);
    const QString& Words() const { return words_; }
    /// With a frame as of a place to drop files.
    void InviteDrops(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAbstractScrollArea& view_;
    QString words_, glyph_;
    bool framed_ = false;
};

}  // namespace qt_adapter
