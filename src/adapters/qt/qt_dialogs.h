// Boxes that ask the user and wait. Timers and windows that are not blocked go on meanwhile.
#pragma once

#include <QFileDialog>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <vector>

#include "adapters/qt/gate.h"
#include "platform/dialogs.h"
#include "platform/program_answer.h"

namespace qt_adapter {

/// "caption|*.a;*.b|caption|*.*" as the toolkit's list of name filters.
QStringList NameFilters(TextView filter);

/// What is added to a name typed without an extension: that of the first pattern; empty when it
/// names none.
QString DefaultSuffix(TextView filter);

class QtDialogs : public platform::Dialogs {
public:
    /// The application is there already.
    explicit QtDialogs(Gate& gate);
    platform::Answer Message(TextView text, int flags, TextView title) override;
    std::optional<Text> Input(TextView prompt, TextView title, TextView initial) override;
    std::optional<Text> ChooseFile(const FileRequest& request) override;
    std::vector<Text> ChooseFiles(const FileRequest& request) override;
    std::optional<Text> ChooseFolder(const FileRequest& request) override;
    /// Whether the show may start a program, as program_box.h says.
    platform::ProgramAnswer AskProgram(const platform::ProgramQuestion& question);

private:
    QStringList Choose(const FileRequest& request, QFileDialog::FileMode mode);
    void NoteActive(const QWindow* window);
    /// The window that a box stands over: the active one; while none is, for instance as another
    /// box has just gone, a full-screen one that would hide it, else the one that was last active.
    /// Small tool windows come and go and own no box.
    QWidget* BoxParent() const;

    Gate& gate_;
    QObject watcher_;                        // its connection ends with it
    std::vector<QPointer<QWidget>> recent_;  // windows by when they were last active
    QString lastFolder_;
};

}  // namespace qt_adapter
