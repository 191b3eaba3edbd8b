#include "adapters/qt/folder_tree.h"

#include <QApplication>
#include <QStyle>

#include "adapters/qt/convert.h"
#include "text/paths.h"

namespace qt_adapter {

namespace {

/// "/" of a native path, "C:\" of one with a drive.
Text RootOf(const Text& path) {
    if (text::IsNativePath(path)) {
        return u"/";
    }
    const size_t colon = path.find(u':');
    return colon == Text::npos ? Text() : path.substr(0, colon + 1) + u"\\";
}

bool IsSeparator(char16_t c) {
    return c == u'/' || c == u'\\';
}

}  // namespace

QModelIndex FolderTree::Find(const Text& path) {
    const Text root = RootOf(path);
    if (!folders_ || root.empty()) {
        return {};
    }
    if (!root_ || root_->path != root) {
        beginResetModel();
        root_ = std::make_unique<Node>();
        root_->path = root_->name = root;
        endResetModel();
    }
    Node* node = root_.get();
    size_t start = std::min(root.size(), path.size());
    while (start < path.size()) {
        size_t end = start;
        while (end < path.size() && !IsSeparator(path[end])) {
            ++end;
        }
        const Text name = path.substr(start, end - start);
        start = end + 1;
        if (name.empty()) {
            continue;
        }
        fetchMore(IndexOf(node));
        Node* next = nullptr;
        for (const auto& child : node->below) {
            if (child->name == name) {
                next = child.get();
            }
        }
        if (!next) {
            return {};
        }
        node = next;
    }
    return IndexOf(node);
}

void FolderTree::Forget() {
    beginResetModel();
    root_.reset();
    endResetModel();
}

Text FolderTree::PathOf(const QModelIndex& index) const {
    const Node* node = NodeOf(index);
    return node ? node->path : Text();
}

QModelIndex FolderTree::index(int row, int column, const QModelIndex& parent) const {
    if (column != 0 || row < 0 || row >= rowCount(parent)) {
        return {};
    }
    const Node* above = NodeOf(parent);
    return createIndex(row, 0, above ? above->below[static_cast<size_t>(row)].get() : root_.get());
}

QModelIndex FolderTree::parent(const QModelIndex& index) const {
    const Node* node = NodeOf(index);
    return node ? IndexOf(node->above) : QModelIndex();
}

int FolderTree::rowCount(const QModelIndex& parent) const {
    const Node* node = NodeOf(parent);
    return node ? static_cast<int>(node->below.size()) : root_ ? 1 : 0;
}

QVariant FolderTree::data(const QModelIndex& index, int role) const {
    const Node* node = NodeOf(index);
    if (!node) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return ToQt(node->name);
    }
    if (role == Qt::DecorationRole) {
        return QApplication::style()->standardIcon(node->above ? QStyle::SP_DirIcon
                                                               : QStyle::SP_DriveHDIcon);
    }
    return {};
}

bool FolderTree::hasChildren(const QModelIndex& parent) const {
    const Node* node = NodeOf(parent);
    return !node || !node->read || !node->below.empty();
}

bool FolderTree::canFetchMore(const QModelIndex& parent) const {
    const Node* node = NodeOf(parent);
    return node && !node->read;
}

void FolderTree::fetchMore(const QModelIndex& parent) {
    Node* node = NodeOf(parent);
    if (!node || node->read) {
        return;
    }
    node->read = true;
    const std::vector<Text> names = folders_->Subfolders(node->path);
    if (names.empty()) {
        return;
    }
    beginInsertRows(parent, 0, static_cast<int>(names.size()) - 1);
    const Text folder = text::WithSeparator(node->path);
    for (const Text& name : names) {
        auto child = std::make_unique<Node>();
        child->path = folder + name;
        child->name = name;
        child->above = node;
        child->row = static_cast<int>(node->below.size());
        node->below.push_back(std::move(child));
    }
    endInsertRows();
}

FolderTree::Node* FolderTree::NodeOf(const QModelIndex& index) const {
    return static_cast<Node*>(index.internalPointer());
}

QModelIndex FolderTree::IndexOf(Node* node) const {
    return node ? createIndex(node->row, 0, node) : QModelIndex();
}

}  // namespace qt_adapter
