// Documents that a person drops on the main window.
#pragma once

#include "model/application.h"

namespace app {

/// Connects Form1's FilesDropped: the first document among the files is taken. A show is opened
/// as by the file menu; a link list is played as from the command line. Without a document the
/// first file is refused with the reader's message. Nothing happens while a show is under way or
/// the program is busy.
void AttachDroppedFiles(Application& application);

}  // namespace app
