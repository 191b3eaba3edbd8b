// A view whose rows are cells of one size, as lines below each other or in a grid. The toolkit's
// own list lays all rows out whenever one of them changes; here every place is reckoned.
#pragma once

#include <QListView>

namespace qt_adapter {

class FaceView : public QListView {
    Q_OBJECT

public:
    explicit FaceView(QWidget* parent = nullptr);

    /// Smallest size of a cell. In a grid cells share out the width, as lines they have all of it.
    void SetCell(QSize least, bool grid);

    QRect visualRect(const QModelIndex& index) const override;
    QModelIndex indexAt(const QPoint& place) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    void doItemsLayout() override;

protected:
    int horizontalOffset() const override { return 0; }
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex&) const override { return false; }
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void startDrag(Qt::DropActions actions) override;

private:
    int Rows() const { return model() ? model()->rowCount() : 0; }
    int Columns() const;
    QSize Cell() const;
    QRect RectOf(int row) const;
    QItemSelection RowsIn(const QRect& rect) const;

    QSize least_{1, 1};
    bool grid_ = false;
};

}  // namespace qt_adapter
