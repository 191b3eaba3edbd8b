#include "authoring/shared/list_sorting.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>
#include <vector>

#include "authoring/shared/list_work.h"
#include "text/natural_order.h"
#include "text/paths.h"

namespace authoring {

namespace {

using platform::FileFacts;
using platform::FileInquiry;

using Rows = std::vector<int>;

/// The selected rows where there are several, else all.
Rows RowsToSort(const ListWindow& window) {
    Rows rows = SelectedRows(window.list.rows);
    if (rows.size() < 2) {
        rows.resize(static_cast<size_t>(window.list.rows.ListCount()));
        std::iota(rows.begin(), rows.end(), 0);
    }
    return rows;
}

/// `sorted` are the same rows in another order: they share their places out anew.
void PutInOrder(const ListWindow& window, const Rows& places, const Rows& sorted) {
    Rows order(static_cast<size_t>(window.list.rows.ListCount()));
    std::iota(order.begin(), order.end(), 0);
    for (size_t i = 0; i < places.size(); ++i) {
        order[static_cast<size_t>(places[i])] = sorted[i];
    }
    document::ReorderRows(window.list, order);
    NoteChange(window);
}

/// By what `keyOf` makes of a path; rows with equal keys keep their order.
template <class KeyOf, class Less>
void SortBy(const ListWindow& window, KeyOf keyOf, Less less) {
    const model::ListBox& list = window.list.rows;
    const Rows places = RowsToSort(window);
    using Key = decltype(keyOf(Text()));
    std::vector<std::pair<Key, int>> keyed;
    keyed.reserve(places.size());
    for (const int row : places) {
        keyed.emplace_back(keyOf(list.List(row)), row);
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [&less](const auto& a, const auto& b) { return less(a.first, b.first); });
    Rows sorted;
    for (const auto& [key, row] : keyed) {
        sorted.push_back(row);
    }
    PutInOrder(window, places, sorted);
}

Text NameKey(const Text& path) {
    return text::Upper(text::BareName(path));
}

/// Separators stand before all characters of names, so that what lies in a folder follows it.
std::pair<Text, Text> FolderKey(const Text& path) {
    Text folder = text::Upper(text::FolderPart(path));
    std::replace(folder.begin(), folder.end(), u'\\', u'\u0001');
    std::replace(folder.begin(), folder.end(), u'/', u'\u0001');
    return {std::move(folder), NameKey(path)};
}

void SortByName(const ListWindow& window) {
    SortBy(window, NameKey, text::NaturalLess);
}

void SortByFolder(const ListWindow& window) {
    SortBy(window, FolderKey, [](const auto& a, const auto& b) {
        return a.first != b.first ? text::NaturalLess(a.first, b.first)
                                  : text::NaturalLess(a.second, b.second);
    });
}

/// Files without a date go last. Rows may change while the files are asked about.
void SortByDate(const ListWindow& window, FileInquiry::What what,
                std::optional<platform::DateTime> FileFacts::*date) {
    const model::ListBox& list = window.list.rows;
    std::vector<Text> paths;
    for (const int row : RowsToSort(window)) {
        paths.push_back(list.List(row));
    }
    std::optional<FactsOfFiles> facts;
    {
        ListWork work(window, u"確認中");
        facts = AskFacts(window.app, work, std::move(paths), what);
    }
    if (!facts) {
        return;
    }
    const auto dateOf = [&](const Text& path) {
        const auto found = facts->find(path);
        return found == facts->end() ? std::nullopt : found->second.*date;
    };
    SortBy(window, dateOf, [](const auto& a, const auto& b) { return a && (!b || *a < *b); });
}

void Shuffle(const ListWindow& window) {
    const Rows places = RowsToSort(window);
    Rows sorted = places;
    for (size_t left = sorted.size(); left > 1; --left) {
        const auto drawn =
            static_cast<size_t>(window.app.platform.loop.Rnd() * static_cast<double>(left));
        std::swap(sorted[left - 1], sorted[drawn]);
    }
    PutInOrder(window, places, sorted);
}

void Reverse(const ListWindow& window) {
    const Rows places = RowsToSort(window);
    PutInOrder(window, places, Rows(places.rbegin(), places.rend()));
}

}  // namespace

void AttachSorting(const ListWindow& window, const SortEntries& entries) {
    const auto attach = [&window](model::MenuEntry& entry, auto sort) {
        AttachCommand(window, entry, u"", [window, sort] { sort(window); });
    };
    attach(entries.name, SortByName);
    attach(entries.date, [](const ListWindow& list) {
        SortByDate(list, FileInquiry::Presence, &FileFacts::changed);
    });
    attach(entries.folder, SortByFolder);
    attach(entries.shuffle, Shuffle);
    attach(entries.reverse, Reverse);
    if (entries.taken) {
        attach(*entries.taken, [](const ListWindow& list) {
            SortByDate(list, FileInquiry::DateTaken, &FileFacts::taken);
        });
    }
}

}  // namespace authoring
