// The folders of one drive or of the whole machine as a tree, each read when it is opened.
#pragma once

#include <QAbstractItemModel>
#include <memory>
#include <vector>

#include "platform/folders.h"

namespace qt_adapter {

class FolderTree : public QAbstractItemModel {
public:
    /// Reads folders by `folders`; null: the tree stays empty.
    explicit FolderTree(platform::Folders* folders) : folders_(folders) {}

    /// The folder's row, with the folders above it read; not valid for one that is not there. A
    /// path under another root than before makes the tree anew.
    QModelIndex Find(const Text& path);
    /// Reads anew what was read: new folders come in, those that are gone go, all others stay.
    void Renew();
    Text PathOf(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex&) const override { return 1; }
    QVariant data(const QModelIndex& index, int role) const override;
    bool hasChildren(const QModelIndex& parent) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    struct Node {
        Text path;
        Text name;
        Node* above = nullptr;
        int row = 0;
        bool read = false;
        std::vector<std::unique_ptr<Node>> below;
    };

    void Renew(Node& node);
    void Insert(Node& node, size_t row, const std::vector<Text>& names);
    void Remove(Node& node, size_t first, size_t end);
    static void Number(Node& node);

    Node* NodeOf(const QModelIndex& index) const;
    QModelIndex IndexOf(Node* node) const;

    platform::Folders* folders_;
    std::unique_ptr<Node> root_;
};

}  // namespace qt_adapter
