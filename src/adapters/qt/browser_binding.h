// The lists of a file browser beside the list of files: places and folders; and the folded list.
#pragma once

#include <QComboBox>
#include <QTreeView>
#include <memory>

#include "adapters/qt/control_binding.h"
#include "adapters/qt/folder_tree.h"
#include "model/list_controls.h"

namespace qt_adapter {

class ComboBinding : public ControlBinding {
public:
    ComboBinding(model::ListBox& list, QComboBox& widget, const Site& site);
    void RowsChanged(model::Control& control, const model::RowChange& change) override;

protected:
    void SyncOwn() override;
    virtual void ShowRow(int row);

    model::ListBox& list_;
    QComboBox& face_;
};

/// Places are shown by their labels and icons.
class DriveBinding : public ComboBinding {
public:
    DriveBinding(model::DriveList& drive, QComboBox& widget, const Site& site);

protected:
    void ShowRow(int row) override;

private:
    model::DriveList& drive_;
};

/// A press or the keyboard's step on a folder opens it.
class FolderBinding : public ControlBinding {
public:
    FolderBinding(model::FolderList& dir, QTreeView& widget, const Site& site);
    ~FolderBinding() override;
    void RowsChanged(model::Control& control, const model::RowChange& change) override;

protected:
    void SyncOwn() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Opened(const QModelIndex& index);

    model::FolderList& dir_;
    QTreeView& face_;
    std::unique_ptr<FolderTree> tree_;
    Text shown_;              // the path that stands in the tree
    bool following_ = false;  // a change of the model is being shown: its echo is not news
};

}  // namespace qt_adapter
