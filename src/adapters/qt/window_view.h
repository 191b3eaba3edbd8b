// One window on the screen: made from its form when first needed, tied to its model by names.
// What a form can say beside its widgets, as dynamic properties:
//   root   windowKind   "Frameless Tool StayOnTop NoFocus" in any choice
//   root   coversMonitor  covers the monitor that the model's place lies on, in physical pixels
//   root   countsPixels   the model's place and size are the monitor's pixels, however the desktop
//                         scales; as large as a monitor it covers that one as full screen
//   root   over         name of the window that this one stands above
//   root   unseen       names of controls that are never shown
//   root   titleOf      name of a label whose words stand before the caption in the title
//   root   firstFocus   the widget that has the keyboard at first
//   canvas hostsObjects controls without a widget are made over this canvas when shown
//   any    glyph, glyphRole  icon shape, and "highlight" for one on the accent colour
//   button glyphFor     "CAPTION GLYPH": its shape while that is its caption
//   any    focusKey     "Ctrl+F": gives it the keyboard
//   any    elementsOf   name of a control array whose elements without a widget are made in it, in
//                       lines of as many as elementsBeside says
//   any    roomOf       name of a control whose Width and Height in the model follow this one's
//   any    placed       stands and is as large as the model says, whatever its parent's layout
//   button entry        menu entry that it stands for, with its mark and its being enabled
//   button menu         menu that it opens
//   list   contextMenu  "A - B": entries, menus and buttons in groups, at the mouse or the menu key
//   list   keysHere     entries whose keys are theirs only while the list has the keyboard
//   list   emptyWords, emptyGlyph  what stands in place of rows; the first line stands out
//   list   noneSeenWords  the same where a filter hides all rows (faces only)
//   button ofFiles      name of a file list that it shows as names, or, with asPictures, thumbnails
//   list   insertsWhile check box: while it is ticked, files that are dropped go in front of the
//                       one selected row, else to the end
//   line   escClears    Esc empties it
//   any    showWhile    "idle A !B seen:C": shown while the pointer is normal, A enabled, B
//   disabled,
//                       C visible
//   button presses      name of a button that a press on it presses
//   label  elided       words that are too long lose their middle
//   label  passes       milliseconds for which new words stand
//   label  textWithDrop words used instead when the window takes dropped files
// A label called windowCaption follows the window's caption.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "adapters/qt/control_binding.h"
#include "adapters/qt/form_loader.h"
#include "adapters/qt/menu_binding.h"
#include "model/controls.h"
#include "model/window.h"

class QDropEvent;

namespace qt_adapter {

class WindowView : public QObject, public model::Listener {
public:
    /// `viewOf` answers another window's view by name, or null.
    WindowView(model::Window& window, FormLoader& loader, Gate& gate,
               std::function<WindowView*(const QString&)> viewOf);
    ~WindowView() override;

    model::Window& Window() { return window_; }
    /// The window's widget, made now if need be; null if its form cannot be read.
    QWidget* Widget();
    QWidget* WidgetIfMade() const { return root_; }
    /// Lets canvases ask for the repaints that are due.
    void FlushCanvases();

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Condition {
        QWidget* widget;
        QStringList terms;
    };

    void Build();
    void ApplyWindowKind();
    void BindControls();
    void Bind(model::VisibleControl& control, QWidget& widget, const CanvasWidget* host);
    /// By the names of the arrays whose elements they take.
    QHash<QString, QWidget*> BoxesOfElements();
    void GiveElementsRoom(QWidget& box);
    void MakeElement(model::VisibleControl& control, QWidget& box);
    void MakeOverlay(model::VisibleControl& control);
    void DecorateWidgets();
    void Decorate(QWidget& widget);
    void TieToMenus(QWidget& widget);
    void ApplyConditions();
    void GiveFirstFocus();

    void FollowVisible();
    void GiveKeyboardToFirst();
    void ShowFullScreen();
    void PlaceInPixels();
    QSize RoomForWindow() const;
    void FollowPlace();
    void FollowSize();
    void FollowState();
    void FollowPointer();
    void FollowCaption();

    void Exposed();
    void ActivatedBySystem();
    void DeactivatedBySystem();
    void Resized();
    void StateChangedByPerson();
    bool PressFocusedButton();
    void Dragged(QDropEvent& drag);
    bool TakesDrops() const;
    model::VisibleControl* TakerOfDrop(QPoint place);
    void Dropped(const QDropEvent& event);

    model::Window& window_;
    FormLoader& loader_;
    Gate& gate_;
    std::function<WindowView*(const QString&)> viewOf_;
    QPointer<QWidget> root_;
    CanvasWidget* host_ = nullptr;  // over which controls without a widget are placed
    bool fullScreen_ = false;
    bool countsPixels_ = false;
    bool left_ = false;  // another window of the program has the keyboard
    std::unique_ptr<MenuBinding> menu_;
    std::vector<std::unique_ptr<ControlBinding>> bindings_;
    std::vector<model::VisibleControl*> unmade_;  // get their widget when first shown
    std::vector<Condition> conditions_;
    std::vector<model::Control*> heard_;
    const model::Label* title_ = nullptr;
};

}  // namespace qt_adapter
