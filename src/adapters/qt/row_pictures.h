// Thumbnails in a list: those of the rows that are seen, and no others, are asked for.
#pragma once

#include <QCache>
#include <QListView>
#include <QPixmap>
#include <QSet>
#include <functional>
#include <vector>

#include "platform/thumbnails.h"

namespace qt_adapter {

/// Lives as long as its view shows pictures.
class RowPictures : public QObject {
public:
    /// `pathOf`: full path of a row's file, empty where it has none: its place stays plain ground.
    /// `side`: of the square for a picture, in the toolkit's pixels. `thumbnails` must outlive
    /// this.
    RowPictures(QListView& view, platform::Thumbnails& thumbnails, int side,
                std::function<Text(int row)> pathOf);
    ~RowPictures() override;

    /// A square of the side: the row's picture in its middle, or what stands for it while it is
    /// not there yet or there is none.
    QPixmap Of(int row) const;

    /// The row's file is no film, and no picture could be made of it.
    bool Unreadable(int row) const;

    /// The rows are others: what is held is let go.
    void Forget();
    /// Files may have changed: what is held is shown until it has been asked for anew.
    void Refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::vector<Text> Missing() const;
    void AskForSeen();
    void Take(const Text& path, const platform::BitmapPtr& picture);
    int FirstSeenRow() const;

    QListView& view_;
    platform::Thumbnails& thumbnails_;
    int side_;
    std::function<Text(int)> pathOf_;
    QCache<Text, QPixmap> held_;  // cost in KiB
    QSet<Text> without_;          // files that have none
    QSet<Text> stale_;            // of both, what may be another one by now
    std::vector<Text> asked_;     // what was wanted last
    QPixmap waiting_, none_, film_;
};

}  // namespace qt_adapter
