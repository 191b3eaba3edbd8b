#include "adapters/qt/row_pictures.h"

#include <QEvent>
#include <QPainter>
#include <QVariant>
#include <algorithm>

#include "adapters/qt/glyph_shapes.h"

namespace qt_adapter {

namespace {

constexpr int kMostHeldKiB = 64 * 1024;
constexpr double kSignShare = 0.42;  // of the square

QPixmap Square(int side, double ratio) {
    QPixmap square(QSize(side, side) * ratio);
    square.setDevicePixelRatio(ratio);
    square.fill(Qt::transparent);
    return square;
}

QColor Thinned(QColor color, float alpha) {
    color.setAlphaF(alpha);
    return color;
}

/// Quiet ground where a picture will be.
QPixmap Ground(const QWidget& widget, int side) {
    QPixmap square = Square(side, widget.devicePixelRatioF());
    QPainter painter(&square);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Thinned(widget.palette().color(QPalette::Text), 0.08F));
    painter.drawRoundedRect(QRectF(0, side / 8.0, side, side * 3 / 4.0), 4, 4);
    return square;
}

/// In place of a picture that is not there.
QPixmap Sign(const QWidget& widget, int side, const char* glyph) {
    QPixmap square = Ground(widget, side);
    QPainter painter(&square);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = Thinned(widget.palette().color(QPalette::Text), 0.6F);
    painter.setPen(Thinned(ink, 0.35F));
    painter.drawRoundedRect(QRectF(0.5, side / 8.0 + 0.5, side - 1.0, side * 3 / 4.0 - 1.0), 4, 4);
    const double shape = side * kSignShare;
    PaintGlyph(painter, QRectF((side - shape) / 2, (side - shape) / 2, shape, shape),
               ShapeOf(QLatin1String(glyph)), ink);
    return square;
}

}  // namespace

RowPictures::RowPictures(QListView& view, platform::Thumbnails& thumbnails, int side,
                         std::function<Text(int)> pathOf)
    : view_(view),
      thumbnails_(thumbnails),
      side_(side),
      pathOf_(std::move(pathOf)),
      held_(kMostHeldKiB),
      waiting_(Ground(view, side)),
      none_(Sign(view, side, "broken")),
      film_(Sign(view, side, "film")) {
    view.viewport()->installEventFilter(this);
}

RowPictures::~RowPictures() {
    thumbnails_.Want(this, {}, 1, {});
}

QPixmap RowPictures::Of(int row) const {
    const Text path = pathOf_(row);
    if (const QPixmap* picture = held_.object(path)) {
        return *picture;
    }
    return !without_.contains(path) ? waiting_ : text::IsVideoKind(path) ? film_ : none_;
}

bool RowPictures::Unreadable(int row) const {
    const Text path = pathOf_(row);
    return without_.contains(path) && !text::IsVideoKind(path);
}

void RowPictures::Forget() {
    held_.clear();
    without_.clear();
    stale_.clear();
    asked_.clear();
}

void RowPictures::Refresh() {
    const QList<Text> held = held_.keys();
    stale_ = without_;
    stale_.unite({held.begin(), held.end()});
    asked_.clear();
}

bool RowPictures::eventFilter(QObject*, QEvent* event) {
    // Asked before the painting, so that what is held already is in it.
    if (event->type() == QEvent::Paint) {
        AskForSeen();
    }
    return false;
}

/// Rows run from the top down, so the first one that reaches into sight is found by halving.
int RowPictures::FirstSeenRow() const {
    int low = 0, high = view_.model() ? view_.model()->rowCount() : 0;
    while (low < high) {
        const int middle = (low + high) / 2;
        if (view_.visualRect(view_.model()->index(middle, 0)).bottom() < 0) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return low;
}

std::vector<Text> RowPictures::Missing() const {
    std::vector<Text> missing;
    const int rows = view_.model() ? view_.model()->rowCount() : 0;
    for (int row = FirstSeenRow(); row < rows; ++row) {
        if (view_.visualRect(view_.model()->index(row, 0)).top() > view_.viewport()->height()) {
            break;
        }
        const Text path = pathOf_(row);
        const bool known = held_.contains(path) || without_.contains(path);
        if (!path.empty() && (stale_.contains(path) || !known)) {
            missing.push_back(path);
        }
    }
    return missing;
}

void RowPictures::AskForSeen() {
    std::vector<Text> missing = Missing();
    // One that is answered needs no new question for the others.
    const bool known = std::all_of(missing.begin(), missing.end(), [this](const Text& path) {
        return std::find(asked_.begin(), asked_.end(), path) != asked_.end();
    });
    if (known && (!missing.empty() || asked_.empty())) {
        return;
    }
    asked_ = missing;
    const int side = static_cast<int>(side_ * view_.devicePixelRatioF());
    thumbnails_.Want(this, missing, side,
                     [this](const Text& path, const auto& picture) { Take(path, picture); });
}

void RowPictures::Take(const Text& path, const platform::BitmapPtr& picture) {
    stale_.remove(path);
    if (!picture || picture->Empty()) {
        held_.remove(path);
        without_.insert(path);
    } else {
        without_.remove(path);
        const double ratio = view_.devicePixelRatioF();
        QImage image(reinterpret_cast<const uchar*>(picture->pixels.data()), picture->width,
                     picture->height, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        auto* square = new QPixmap(Square(side_, ratio));
        {
            QPainter painter(square);
            painter.drawImage(QPointF((side_ - picture->width / ratio) / 2,
                                      (side_ - picture->height / ratio) / 2),
                              image);
        }
        const int kibibytes = square->width() * square->height() * 4 / 1024;
        held_.insert(path, square, std::max(1, kibibytes));
    }
    view_.viewport()->update();
}

}  // namespace qt_adapter
