#include "adapters/qt/binding_table.h"

#include <QPushButton>
#include <algorithm>
#include <iterator>

#include "adapters/qt/browser_binding.h"
#include "adapters/qt/button_bindings.h"
#include "adapters/qt/file_list_binding.h"
#include "adapters/qt/grid_binding.h"
#include "adapters/qt/list_binding.h"
#include "adapters/qt/number_bindings.h"
#include "adapters/qt/panes_binding.h"
#include "adapters/qt/picture_bindings.h"
#include "adapters/qt/sound_slider.h"
#include "adapters/qt/text_bindings.h"

namespace qt_adapter {

namespace {

using model::ControlKind;

/// Null when the widget is none of Face.
template <class Binding, class Model, class Face>
std::unique_ptr<ControlBinding> Tie(model::VisibleControl& control, QWidget& widget,
                                    const Site& site) {
    auto* face = qobject_cast<Face*>(&widget);
    return face ? std::make_unique<Binding>(static_cast<Model&>(control), *face, site) : nullptr;
}

template <class Face>
QWidget* Plain(QWidget* parent) {
    return new Face(parent);
}

struct KindRow {
    ControlKind kind;
    std::unique_ptr<ControlBinding> (*tie)(model::VisibleControl&, QWidget&, const Site&);
    QWidget* (*plain)(QWidget* parent) = nullptr;  // null: only a form holds one
};

/// Kinds that can be shown by several widgets have a row for each.
constexpr KindRow kRows[] = {
    {ControlKind::Button, Tie<ButtonBinding, model::Button, QAbstractButton>, Plain<QPushButton>},
    {ControlKind::CheckBox, Tie<CheckBinding, model::CheckBox, QCheckBox>},
    {ControlKind::OptionButton, Tie<OptionBinding, model::OptionButton, QRadioButton>},
    {ControlKind::Label, Tie<LabelBinding, model::Label, QLabel>, Plain<QLabel>},
    {ControlKind::Frame, Tie<FrameBinding, model::Frame, QGroupBox>},
    {ControlKind::TextBox, Tie<LineBinding, model::TextBox, QLineEdit>},
    {ControlKind::TextBox, Tie<LinesBinding, model::TextBox, QPlainTextEdit>},
    {ControlKind::ListBox, Tie<ListBinding, model::ListBox, QListView>},
    {ControlKind::FileList, Tie<FileListBinding, model::FileList, QListView>},
    {ControlKind::ComboBox, Tie<ComboBinding, model::ListBox, QComboBox>},
    {ControlKind::DriveList, Tie<DriveBinding, model::DriveList, QComboBox>},
    {ControlKind::FolderList, Tie<FolderBinding, model::FolderList, QTreeView>},
    {ControlKind::Grid, Tie<GridBinding, model::Grid, QTableView>},
    {ControlKind::Calendar, Tie<CalendarBinding, model::Calendar, QCalendarWidget>},
    {ControlKind::ScrollBar, Tie<SoundBinding, model::SoundBar, SoundSlider>},
    {ControlKind::ScrollBar, Tie<ScrollBinding, model::ScrollBar, QAbstractSlider>},
    {ControlKind::ScrollBar, Tie<MeterBinding, model::ScrollBar, QProgressBar>},
    {ControlKind::PictureBox, Tie<PictureBinding, model::PictureBox, CanvasWidget>,
     Plain<CanvasWidget>},
    {ControlKind::Image, Tie<ImageBinding, model::Image, ImageWidget>},
    {ControlKind::Panes, Tie<PanesBinding, model::Panes, PaneSplitter>},
    {ControlKind::Player, Tie<PlayerBinding, model::Player, VideoWidget>},
};

const KindRow* RowOf(ControlKind kind) {
    const auto* found = std::find_if(std::begin(kRows), std::end(kRows),
                                     [kind](const KindRow& row) { return row.kind == kind; });
    return found == std::end(kRows) ? nullptr : found;
}

}  // namespace

bool HasWidget(ControlKind kind) {
    return RowOf(kind) != nullptr;
}

QWidget* MakePlainWidget(ControlKind kind, QWidget* parent) {
    const KindRow* row = RowOf(kind);
    return row && row->plain ? row->plain(parent) : nullptr;
}

std::unique_ptr<ControlBinding> MakeBinding(model::VisibleControl& control, QWidget& widget,
                                            const Site& site) {
    for (const KindRow& row : kRows) {
        if (row.kind != control.Kind()) {
            continue;
        }
        if (auto binding = row.tie(control, widget, site)) {
            return binding;
        }
    }
    qWarning("The form's widget %s is a %s, which does not fit its control",
             qUtf8Printable(widget.objectName()), widget.metaObject()->className());
    return nullptr;
}

}  // namespace qt_adapter
