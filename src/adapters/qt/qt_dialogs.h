// Boxes that ask the user and wait. Timers and windows that are not blocked go on meanwhile.
#pragma once

#include <QFileDialog>
#include <QString>
#include <QStringList>

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
    explicit QtDialogs(Gate& gate) : gate_(gate) {}
    platform::Answer Message(TextView text, int flags, TextView title) override;
    std::optional<Text> Input(TextView prompt, TextView title, TextView initial) override;
    std::optional<Text> ChooseFile(const FileRequest& request) override;
    std::vector<Text> ChooseFiles(const FileRequest& request) override;
    std::optional<Text> ChooseFolder(const FileRequest& request) override;
    /// Whether the show may start a program, as program_box.h says.
    platform::ProgramAnswer AskProgram(const platform::ProgramQuestion& question);

private:
    QStringList Choose(const FileRequest& request, QFileDialog::FileMode mode);

    Gate& gate_;
    QString lastFolder_;
};

}  // namespace qt_adapter
