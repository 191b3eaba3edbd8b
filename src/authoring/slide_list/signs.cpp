#include "authoring/slide_list/signs.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "document/interval.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

Text Count(int64_t number, TextView unit) {
    return text::FromUtf8(std::to_string(number)) + u' ' + Text(unit);
}

Text Duration(int64_t seconds) {
    constexpr int64_t kMinute = 60, kHour = 60 * kMinute;
    if (seconds >= kHour) {
        const int64_t minutes = seconds % kHour / kMinute;
        return Count(seconds / kHour, u"時間") + (minutes > 0 ? u' ' + Count(minutes, u"分") : u"");
    }
    if (seconds >= kMinute) {
        const int64_t rest = seconds % kMinute;
        return Count(seconds / kMinute, u"分") + (rest > 0 ? u' ' + Count(rest, u"秒") : u"");
    }
    return Count(seconds, u"秒");
}

}  // namespace

Text ShowLength(int pictures, int films, double intervalMs) {
    Text length;
    if (pictures > 0) {
        length = u"約 " + Duration(std::llround(pictures * intervalMs / 1000));
    }
    if (films > 0) {
        length += (pictures > 0 ? u"＋動画 " : u"動画 ") + Count(films, u"本");
    }
    return length;
}

SlideListSigns::SlideListSigns(model::Application& app) : app_(app) {
    app_.windows.form1.Listen(this);
    app_.windows.form1.Timer1.Listen(this);
    app_.windows.form3.List1.Listen(this);
    SayDocument();
    PropertyChanged(app_.windows.form3.List1, app_.windows.form3.List1.AsGrid);
    RowsChanged(app_.windows.form3.List1, {model::RowChange::Cleared, 0});
}

SlideListSigns::~SlideListSigns() {
    app_.windows.form1.Unlisten(this);
    app_.windows.form1.Timer1.Unlisten(this);
    app_.windows.form3.List1.Unlisten(this);
}

void SlideListSigns::PropertyChanged(model::Control&, model::PropertyBase& property) {
    model::Form3& form3 = app_.windows.form3;
    if (&property == &app_.windows.form1.Timer1.Interval) {
        SayLength();
    } else if (&property == &app_.windows.form1.Caption) {
        SayDocument();
    } else if (&property == &form3.List1.AsGrid) {
        form3.mnuFACE.Check(form3.List1.AsGrid ? 1 : 0);
    }
}

void SlideListSigns::RowsChanged(model::Control&, const model::RowChange& change) {
    const auto first = film_.begin() + change.row;
    switch (change.kind) {
        case model::RowChange::Inserted:
            film_.insert(first, static_cast<size_t>(change.count), false);
            Look(change.row, change.count);
            break;
        case model::RowChange::Removed:
            films_ -= static_cast<int>(std::count(first, first + change.count, true));
            film_.erase(first, first + change.count);
            break;
        case model::RowChange::Replaced:
            Look(change.row, change.count);
            break;
        case model::RowChange::Cleared:
            films_ = 0;
            film_.assign(app_.windows.form3.List1.Rows().size(), false);
            Look(0, static_cast<int>(film_.size()));
            break;
    }
    SayLength();
}

void SlideListSigns::Look(int row, int count) {
    const model::ListBox& list = app_.windows.form3.List1;
    for (int i = row; i < row + count; ++i) {
        const auto place = static_cast<size_t>(i);
        const bool film = text::IsVideoKind(list.List(i));
        films_ += static_cast<int>(film) - static_cast<int>(film_[place]);
        film_[place] = film;
    }
}

/// Whatever replaces the document says so in the main window's caption.
void SlideListSigns::SayDocument() {
    app_.windows.form3.Document.Caption = text::BareName(app_.state.DocumentPath);
}

void SlideListSigns::SayLength() {
    model::Form3& form3 = app_.windows.form3;
    form3.Length.Caption = ShowLength(static_cast<int>(film_.size()) - films_, films_,
                                      document::IntervalMs(app_.state));
}

}  // namespace authoring
