#include "adapters/qt/face_delegate.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "adapters/qt/convert.h"
#include "adapters/qt/glyph_shapes.h"

namespace qt_adapter {

namespace {

constexpr int kLinePicture = 56, kGridPicture = 128;
constexpr int kEdge = 6, kGap = 10;
constexpr int kMark = 16, kMarkGap = 4;
constexpr double kRound = 5;
constexpr double kDimmed = 0.62;  // of the text's colour; the rest is the ground's
constexpr int kDarkGround = 128;  // lightness below which a theme is a dark one

struct Mark {
    unsigned mark;
    const char* glyph;
    const char16_t* words;
};
constexpr Mark kMarks[] = {
    {model::kMarkMissing, "missing", u"ファイルが見つかりません"},
    {model::kMarkRefused, "missing", u"ショーとして読めません"},
    {model::kMarkFilm, "film", u"動画"},
    {model::kMarkText, "text", u"連動テキストあり"},
    {model::kMarkSound, "sound", u"連動音あり"},
};

std::vector<const Mark*> MarksOf(const model::RowFace& face) {
    std::vector<const Mark*> marks;
    for (const Mark& mark : kMarks) {
        if ((face.marks & mark.mark) != 0) {
            marks.push_back(&mark);
        }
    }
    return marks;
}

QColor Mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()),
            mix(one.blue(), other.blue())};
}

}  // namespace

QString FaceWords(const model::RowFace& face) {
    QStringList words{ToQt(face.title)};
    for (const Mark* mark : MarksOf(face)) {
        words += ToQt(mark->words);
    }
    words += {ToQt(face.detail), ToQt(face.aside)};
    words.removeAll(QString());
    return words.join(QStringLiteral("、"));
}

struct FaceDelegate::Inks {
    Inks(const QStyleOptionViewItem& option) {
        const QPalette& palette = option.palette;
        const QPalette::ColorGroup group =
            !(option.state & QStyle::State_Enabled) ? QPalette::Disabled
            : option.state & QStyle::State_Active   ? QPalette::Active
                                                    : QPalette::Inactive;
        selected = option.state & QStyle::State_Selected;
        ground = palette.color(group, selected ? QPalette::Highlight : QPalette::Base);
        text = palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
        dimmed = selected ? text : Mixed(text, ground, kDimmed);
        const bool dark = ground.lightness() < kDarkGround;
        warning = selected ? text : dark ? QColor(0xFF, 0xB4, 0x8A) : QColor(0xB0, 0x2A, 0x1A);
        outline = palette.color(group, selected ? QPalette::HighlightedText : QPalette::Highlight);
    }
    bool selected;
    QColor ground, text, dimmed, warning, outline;
};

/// Where everything stands.
struct FaceDelegate::Parts {
    QRect number, picture, title, detail, aside;
    std::vector<QRect> marks;
};

FaceDelegate::FaceDelegate(const model::ListBox& list, const RowsModel& rows, QListView& view)
    : QStyledItemDelegate(&view), list_(list), rows_(rows), view_(view) {}

int FaceDelegate::PictureSide(bool asGrid) {
    return asGrid ? kGridPicture : kLinePicture;
}

int FaceDelegate::LinePicture() const {
    return list_.thumbnails ? kLinePicture : 0;
}

QSize FaceDelegate::RowSize(bool asGrid) const {
    const int line = view_.fontMetrics().height();
    if (asGrid) {
        return {kGridPicture + 2 * kGap, kGridPicture + line + 3 * kEdge};
    }
    return {kLinePicture, std::max(LinePicture(), 2 * line) + kEdge};
}

QSize FaceDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return RowSize(list_.AsGrid);
}

FaceDelegate::Parts FaceDelegate::PartsOf(const QRect& place, const model::RowFace& face) const {
    const QFontMetrics letters = view_.fontMetrics();
    const int line = letters.height();
    const int digits = letters.horizontalAdvance(QString::number(std::max(list_.ListCount(), 10)));
    const int marks = static_cast<int>(MarksOf(face).size());
    const int marksWidth = marks * (kMark + kMarkGap);
    Parts parts;
    QPoint firstMark;
    if (list_.AsGrid) {
        parts.picture = QRect(place.center().x() - kGridPicture / 2, place.top() + kEdge,
                              kGridPicture, kGridPicture);
        parts.number =
            QRect(parts.picture.left() + 2, parts.picture.top() + 2,
                  letters.horizontalAdvance(QString::number(list_.ListCount())) + kEdge, line);
        parts.title = QRect(place.left() + kEdge, parts.picture.bottom() + kEdge,
                            place.width() - 2 * kEdge, line);
        firstMark = {parts.picture.right() - marksWidth, parts.picture.bottom() - kMark - 2};
    } else {
        const int middle = place.center().y();
        parts.number = QRect(place.left() + kEdge, place.top(), digits, place.height());
        const int side = LinePicture();
        parts.picture =
            QRect(parts.number.right() + kGap, middle - kLinePicture / 2 + 1, side, side);
        const int left = parts.picture.right() + (side > 0 ? kGap : 1);
        const int right = place.right() - kGap;
        const int top = middle - line;
        const int aside =
            face.aside.empty()
                ? 0
                : std::min(letters.horizontalAdvance(ToQt(face.aside)), (right - left) * 2 / 3) + 1;
        parts.title = QRect(left, top, right - left - marksWidth, line);
        parts.detail = QRect(left, top + line, right - left - aside - (aside ? kGap : 0), line);
        parts.aside = QRect(right - aside, top + line, aside, line);
        // Clear of the words below it.
        firstMark = {right - marksWidth + kMarkGap,
                     top + std::min((line - kMark) / 2, line - kMark - 1)};
    }
    for (int i = 0; i < marks; ++i) {
        parts.marks.emplace_back(firstMark + QPoint(i * (kMark + kMarkGap), 0),
                                 QSize(kMark, kMark));
    }
    return parts;
}

void FaceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const int row = rows_.InList(index.row());
    if (row < 0) {
        return;
    }
    const model::RowFace face = list_.face(row);
    const Inks inks(option);
    const Parts parts = PartsOf(option.rect, face);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(option.rect).adjusted(1.5, 0.5, -1.5, -0.5);
    if (inks.selected) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(inks.ground);
        painter->drawRoundedRect(body, kRound, kRound);
    }
    if (pictures_) {
        const QPixmap picture = pictures_->Of(index.row());
        painter->drawPixmap(parts.picture.topLeft(), picture);
    }
    if (index == view_.currentIndex()) {
        QColor line = inks.outline;
        line.setAlphaF(option.state & QStyle::State_HasFocus ? 1.0F : 0.45F);
        painter->setPen(QPen(line, option.state & QStyle::State_HasFocus ? 2 : 1));
        painter->setBrush(Qt::NoBrush);
        const double inset = inks.selected ? 3 : 1;
        painter->drawRoundedRect(body.adjusted(inset, inset, -inset, -inset), kRound - 1,
                                 kRound - 1);
    }
    painter->setFont(option.font);
    painter->setPen(inks.dimmed);
    const QString number = QString::number(row + 1);
    if (list_.AsGrid) {
        QRect plate = parts.number;
        plate.setWidth(option.fontMetrics.horizontalAdvance(number) + kEdge);
        QColor ground = inks.ground;
        ground.setAlphaF(0.8F);
        painter->fillRect(plate, ground);
        painter->setPen(inks.text);
        painter->drawText(plate, Qt::AlignCenter, number);
    } else {
        painter->drawText(parts.number, Qt::AlignRight | Qt::AlignVCenter, number);
    }
    PaintMarks(*painter, parts, face, inks);
    PaintWords(*painter, parts, face, inks);
    painter->restore();
}

void FaceDelegate::PaintMarks(QPainter& painter, const Parts& parts, const model::RowFace& face,
                              const Inks& inks) const {
    const std::vector<const Mark*> marks = MarksOf(face);
    if (list_.AsGrid && !marks.empty()) {
        // Over the picture they need a ground of their own.
        QColor ground = inks.ground;
        ground.setAlphaF(0.85F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(
            parts.marks.front().united(parts.marks.back()).adjusted(-3, -2, 3, 2), 3, 3);
    }
    for (size_t i = 0; i < marks.size(); ++i) {
        const bool missing =
            marks[i]->mark == model::kMarkMissing || marks[i]->mark == model::kMarkRefused;
        PaintGlyph(painter, parts.marks[i], ShapeOf(QLatin1String(marks[i]->glyph)),
                   missing ? inks.warning : inks.text);
    }
}

void FaceDelegate::PaintWords(QPainter& painter, const Parts& parts, const model::RowFace& face,
                              const Inks& inks) const {
    const QFontMetrics letters = painter.fontMetrics();
    const bool missing = (face.marks & model::kMarkMissing) != 0;
    const auto write = [&](const QRect& place, const Text& words, int how, const QColor& ink) {
        if (!words.empty() && place.width() > 0) {
            painter.setPen(ink);
            painter.drawText(place, how | Qt::AlignVCenter | Qt::TextSingleLine,
                             letters.elidedText(ToQt(words), Qt::ElideMiddle, place.width()));
        }
    };
    write(parts.title, face.title, list_.AsGrid ? Qt::AlignHCenter : Qt::AlignLeft,
          missing ? inks.warning : inks.text);
    write(parts.detail, face.detail, Qt::AlignLeft, inks.dimmed);
    write(parts.aside, face.aside, Qt::AlignRight, inks.dimmed);
}

/// Over a mark what it means, else the whole row.
bool FaceDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
    const int row = rows_.InList(index.row());
    if (event->type() != QEvent::ToolTip || row < 0) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const model::RowFace face = list_.face(row);
    const std::vector<const Mark*> marks = MarksOf(face);
    const Parts parts = PartsOf(option.rect, face);
    QString words = ToQt(list_.List(row));
    if (!face.aside.empty()) {
        words += '\n' + ToQt(face.aside);
    }
    if (pictures_ && pictures_->Unreadable(index.row()) &&
        (face.marks & model::kMarkMissing) == 0) {
        words += QStringLiteral("\n画像を読めません");
    }
    for (size_t i = 0; i < marks.size(); ++i) {
        if (parts.marks[i].contains(event->pos())) {
            words = ToQt(marks[i]->words);
        }
    }
    QToolTip::showText(event->globalPos(), words, view);
    return true;
}

}  // namespace qt_adapter
