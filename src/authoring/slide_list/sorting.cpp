#include "authoring/slide_list/sorting.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>
#include <vector>

#include "authoring/slide_list/list_work.h"
#include "authoring/slide_list/selection.h"
#include "document/slide_rows.h"
#include "model/windows/slide_list.h"
#include "text/natural_order.h"
#include "text/paths.h"

namespace authoring {

namespace {

using model::Application;
using platform::FileFacts;
using platform::FileInquiry;

using Rows = std::vector<int>;

/// The selected rows where there are several, else all.
Rows RowsToSort(const Application& app) {
    Rows rows = SelectedSlides(app);
    if (rows.size() < 2) {
        rows.resize(static_cast<size_t>(app.windows.form3.List1.ListCount()));
        std::iota(rows.begin(), rows.end(), 0);
    }
    return rows;
}

/// `sorted` are the same rows in another order: they share their places out anew.
void PutInOrder(Application& app, const Rows& places, const Rows& sorted) {
    Rows order(static_cast<size_t>(app.windows.form3.List1.ListCount()));
    std::iota(order.begin(), order.end(), 0);
    for (size_t i = 0; i < places.size(); ++i) {
        order[static_cast<size_t>(places[i])] = sorted[i];
    }
    document::ReorderRows(document::SlideRows(app), order);
    app.state.SlideListDirty = 1;
}

/// By what `keyOf` makes of a path; rows with equal keys keep their order.
template <class KeyOf, class Less>
void SortBy(Application& app, KeyOf keyOf, Less less) {
    const model::ListBox& list = app.windows.form3.List1;
    const Rows places = RowsToSort(app);
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
    PutInOrder(app, places, sorted);
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

void SortByName(Application& app) {
    SortBy(app, NameKey, text::NaturalLess);
}

void SortByFolder(Application& app) {
    SortBy(app, FolderKey, [](const auto& a, const auto& b) {
        return a.first != b.first ? text::NaturalLess(a.first, b.first)
                                  : text::NaturalLess(a.second, b.second);
    });
}

/// Files without a date go last. Rows may change while the files are asked about.
void SortByDate(Application& app, FileInquiry::What what,
                std::optional<platform::DateTime> FileFacts::*date) {
    const model::ListBox& list = app.windows.form3.List1;
    std::vector<Text> paths;
    for (const int row : RowsToSort(app)) {
        paths.push_back(list.List(row));
    }
    std::optional<FactsOfFiles> facts;
    {
        ListWork work(app, u"確認中");
        facts = AskFacts(app, work, std::move(paths), what);
    }
    if (!facts) {
        return;
    }
    const auto dateOf = [&](const Text& path) {
        const auto found = facts->find(path);
        return found == facts->end() ? std::nullopt : found->second.*date;
    };
    SortBy(app, dateOf, [](const auto& a, const auto& b) { return a && (!b || *a < *b); });
}

void Shuffle(Application& app) {
    const Rows places = RowsToSort(app);
    Rows sorted = places;
    for (size_t left = sorted.size(); left > 1; --left) {
        const auto drawn = static_cast<size_t>(app.platform.loop.Rnd() * static_cast<double>(left));
        std::swap(sorted[left - 1], sorted[drawn]);
    }
    PutInOrder(app, places, sorted);
}

void Reverse(Application& app) {
    const Rows places = RowsToSort(app);
    PutInOrder(app, places, Rows(places.rbegin(), places.rend()));
}

}  // namespace

void AttachSorting(Application& app) {
    model::Form3& form3 = app.windows.form3;
    AttachCommand(app, form3.mnuSORTNAME, u"", SortByName);
    AttachCommand(app, form3.mnuSORTTAKEN, u"", [](Application& application) {
        SortByDate(application, FileInquiry::DateTaken, &FileFacts::taken);
    });
    AttachCommand(app, form3.mnuSORTDATE, u"", [](Application& application) {
        SortByDate(application, FileInquiry::Presence, &FileFacts::changed);
    });
    AttachCommand(app, form3.mnuSORTFOLDER, u"", SortByFolder);
    AttachCommand(app, form3.mnuSHUFFLE, u"", Shuffle);
    AttachCommand(app, form3.mnuREVERSE, u"", Reverse);
}

}  // namespace authoring
