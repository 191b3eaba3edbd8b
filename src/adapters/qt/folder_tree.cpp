#include "adapters/qt/folder_tree.h"

#include <QApplication>
#include <QStyle>
#include <iterator>
#include <unordered_set>

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

std::ptrdiff_t Offset(size_t row) {
    return static_cast<std::ptrdiff_t>(row);
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

void FolderTree::Renew() {
    if (root_) {
        Renew(*root_);
    }
}

void FolderTree::Renew(Node& node) {
    if (!node.read) {
        return;
    }
    const std::vector<Text> names = folders_->Subfolders(node.path);
    const std::unordered_set<Text> there(names.begin(), names.end());
    const auto isGone = [&](size_t row) { return !there.contains(node.below[row]->name); };
    for (size_t end = node.below.size(); end > 0; --end) {
        size_t first = end;
        while (first > 0 && isGone(first - 1)) {
            --first;
        }
        if (first < end) {
            Remove(node, first, end);
            end = first + 1;
        }
    }
    // What stays has its order, so whatever differs from it is new.
    const auto isKept = [&](size_t row, size_t name) {
        return row < node.below.size() && node.below[row]->name == names[name];
    };
    for (size_t row = 0; row < names.size(); ++row) {
        size_t end = row;
        while (end < names.size() && !isKept(row, end)) {
            ++end;
        }
        if (row < end) {
            Insert(node, row, {names.begin() + Offset(row), names.begin() + Offset(end)});
            row = end - 1;
        } else {
            Renew(*node.below[row]);
        }
    }
}

void FolderTree::Insert(Node& node, size_t row, const std::vector<Text>& names) {
    std::vector<std::unique_ptr<Node>> made;
    for (const Text& name : names) {
        made.push_back(std::make_unique<Node>());
        made.back()->path = text::WithSeparator(node.path) + name;
        made.back()->name = name;
        made.back()->above = &node;
    }
    const int first = static_cast<int>(row);
    beginInsertRows(IndexOf(&node), first, first + static_cast<int>(names.size()) - 1);
    node.below.insert(node.below.begin() + Offset(row), std::make_move_iterator(made.begin()),
                      std::make_move_iterator(made.end()));
    Number(node);
    endInsertRows();
}

void FolderTree::Remove(Node& node, size_t first, size_t end) {
    beginRemoveRows(IndexOf(&node), static_cast<int>(first), static_cast<int>(end) - 1);
    node.below.erase(node.below.begin() + Offset(first), node.below.begin() + Offset(end));
    Number(node);
    endRemoveRows();
}

void FolderTree::Number(Node& node) {
    int row = 0;
    for (const auto& child : node.below) {
        child->row = row++;
    }
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
    Insert(*node, 0, names);
}

FolderTree::Node* FolderTree::NodeOf(const QModelIndex& index) const {
    return static_cast<Node*>(index.internalPointer());
}

QModelIndex FolderTree::IndexOf(Node* node) const {
    return node ? createIndex(node->row, 0, node) : QModelIndex();
}

}  // namespace qt_adapter
