#include "adapters/qt/row_height.h"

#include <QStyledItemDelegate>
#include <algorithm>

namespace qt_adapter {

namespace {

constexpr int kBesideLetters = 6;

class HighRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        const int least = std::max(kLeastRowHeight, option.fontMetrics.height() + kBesideLetters);
        return {size.width(), std::max(size.height(), least)};
    }
};

}  // namespace

void GiveRowsHeight(QAbstractItemView& view) {
    view.setItemDelegate(new HighRows(&view));
}

}  // namespace qt_adapter
