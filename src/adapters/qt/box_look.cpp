#include "adapters/qt/box_look.h"

#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

namespace qt_adapter {

namespace {

constexpr double kUnits = 48;
constexpr double kStroke = 4.6;

struct Sign {
    QMessageBox::Icon icon;
    QRgb ground;
    bool triangle;
    QRgb ink;
};
constexpr Sign kSigns[] = {
    {QMessageBox::Question, 0xFF2F6FB5, false, 0xFFFFFFFF},
    {QMessageBox::Information, 0xFF2F6FB5, false, 0xFFFFFFFF},
    {QMessageBox::Warning, 0xFFF5B82E, true, 0xFF3A2A00},
    {QMessageBox::Critical, 0xFFC62F2F, false, 0xFFFFFFFF},
};

QPainterPath Ground(bool triangle) {
    QPainterPath path;
    if (triangle) {
        path.moveTo(24, 6);
        path.lineTo(44, 41);
        path.lineTo(4, 41);
        path.closeSubpath();
    } else {
        path.addEllipse(QPointF(24, 24), 20, 20);
    }
    return path;
}

/// Strokes and, as circles of the strokes' width, dots.
QPainterPath Shape(QMessageBox::Icon icon, QPointF& dot) {
    QPainterPath path;
    switch (icon) {
        case QMessageBox::Question:
            path.moveTo(18, 19.5);
            path.cubicTo(18, 10.5, 31, 11, 30.5, 19);
            path.cubicTo(30.2, 23.5, 24, 23, 24, 29);
            dot = {24, 35.5};
            break;
        case QMessageBox::Information:
            path.moveTo(24, 22);
            path.lineTo(24, 34);
            dot = {24, 14.5};
            break;
        case QMessageBox::Warning:
            path.moveTo(24, 19);
            path.lineTo(24, 29);
            dot = {24, 35.5};
            break;
        default:
            path.moveTo(17.5, 17.5);
            path.lineTo(30.5, 30.5);
            path.moveTo(30.5, 17.5);
            path.lineTo(17.5, 30.5);
            break;
    }
    return path;
}

}  // namespace

QPixmap SignOf(QMessageBox::Icon icon, int side, double ratio) {
    for (const Sign& sign : kSigns) {
        if (sign.icon != icon) {
            continue;
        }
        QPixmap pixmap(QSize(side, side) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(side / kUnits, side / kUnits);
        const QColor ground(sign.ground), ink(sign.ink);
        painter.setBrush(ground);
        painter.setPen(
            QPen(ground, sign.triangle ? 4 : 0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(Ground(sign.triangle));
        QPointF dot(-1, -1);
        const QPainterPath shape = Shape(icon, dot);
        painter.strokePath(shape, QPen(ink, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (dot.x() > 0) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(ink);
            painter.drawEllipse(dot, kStroke * 0.6, kStroke * 0.6);
        }
        return pixmap;
    }
    return {};
}

void GiveBoxFrame(QDialog& box) {
    box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                       Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                       Qt::MSWindowsFixedSizeDialogHint);
}

void PlainButtons(QDialog& box) {
    for (QPushButton* button : box.findChildren<QPushButton*>()) {
        button->setIcon(QIcon());
    }
}

}  // namespace qt_adapter
