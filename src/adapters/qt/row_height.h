// How high the rows of plain lists and trees are.
#pragma once

#include <QAbstractItemView>

namespace qt_adapter {

constexpr int kLeastRowHeight = 22;  // pixels

/// Rows of words are high enough to be read and hit with ease.
void GiveRowsHeight(QAbstractItemView& view);

}  // namespace qt_adapter
