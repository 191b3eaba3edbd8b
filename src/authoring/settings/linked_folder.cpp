#include "authoring/settings/linked_folder.h"

#include "authoring/shared/browser_memory.h"
#include "authoring/shared/file_browser.h"
#include "model/monitors.h"
#include "model/windows/linked_folder.h"
#include "text/paths.h"

namespace authoring {

namespace {

using model::Application;

void FollowCheck1(model::Form12& form12) {
    const bool choosing = form12.Check1.Value == 0;
    form12.Text1.Enabled = choosing;
    form12.Dir1.Enabled = choosing;
    form12.Drive1.Enabled = choosing;
}

void Form_Load(Application& app) {
    model::Form12& form12 = app.windows.form12;
    model::CentreOnMonitor(app, form12);
    const bool own = app.state.LinkedFolderFlag == 1;
    const bool there = own && app.platform.folders.IsFolder(app.state.LinkedFolder);
    OpenBrowser(app, form12.Drive1, form12.Dir1,
                there ? app.state.LinkedFolder : app.platform.folders.Home());
    // Also one that is gone: it stays until another one is chosen.
    form12.Text1.Content = own ? app.state.LinkedFolder : form12.Dir1.Path();
    form12.Check1.Value = own ? 0 : 1;
    FollowCheck1(form12);
}

void Command1_Click(Application& app) {
    model::Form12& form12 = app.windows.form12;
    if (form12.Check1.Value == 1) {
        app.state.LinkedFolderFlag = 0;
        form12.Unload();
        return;
    }
    const Text shown = form12.Dir1.Path;
    if (IsRefusedFolder(app, shown)) {
        app.platform.dialogs.Message(
            shown +
                u"\r\nこのフォルダは指定できません。"
                u"\r\n再度チェックを外し、別のフォルダを指定してください。",
            platform::kExclamation, u"フォルダ未指定");
        app.state.LinkedFolderFlag = 0;
        form12.Check1.Value = 1;
        FollowCheck1(form12);
        return;
    }
    app.state.LinkedFolder = text::WithoutSeparator(form12.Text1.Content());
    form12.Unload();
    app.state.LinkedFolderFlag = 1;
    RememberFolder(app, app.state.LinkedFolder);
}

}  // namespace

void AttachLinkedFolder(Application& app) {
    model::Form12& form12 = app.windows.form12;
    AttachBrowser(form12.Drive1, form12.Dir1,
                  [&form12] { form12.Text1.Content = form12.Dir1.Path(); });
    form12.OnLoad = [&app] { Form_Load(app); };
    form12.Check1.Click = [&form12] { FollowCheck1(form12); };
    form12.Command1.Click = [&app] { Command1_Click(app); };
    form12.Command2.Click = [&form12] { form12.Unload(); };
}

}  // namespace authoring
