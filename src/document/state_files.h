// The files in the program folder that keep what no document holds. All are written whole
// or not at all; a failed write shows the platform's words in a plain box. A file that is there and
// was not read to its end (an unreadable one, one of another tag or with a fault) is never
// replaced.
#pragma once

#include "document/unread_files.h"
#include "model/application.h"

namespace document {

/// Reads autstart.dat, the whole state of the last run, in any version. Silent where it is missing,
/// unreadable or faulty; what was read before a fault is in force. Menu checks and controls follow.
/// A file that was read to its end also centres the main window on monitor MonitorIndex and gives
/// it the document's caption. The caller sets SlideListEnd.
void ReadStateFile(Application& app);
/// The same from a file of any name. Nothing for one that cannot be read, or whose first line is
/// neither a tag nor a number: then nothing has changed.
Taken ReadStateFile(Application& app, TextView path);
/// Sets Mp3ModeFlag by SoundMode, and a SoundMode of 8 to 7. False where the write failed.
bool WriteStateFile(Application& app);

/// uautst.dat: the link window's list and flags. Missing, of another tag or unreadable: silent,
/// nothing has changed; one that ends early leaves what was read.
void ReadLinkStateFile(Application& app);
/// The same from a file of any name.
Taken ReadLinkStateFile(Application& app, TextView path);
void WriteLinkStateFile(Application& app);

/// wavlist.dat: the sound list. A missing file or one with another tag leaves everything as it is.
void ReadSoundListFile(Application& app);
void WriteSoundListFile(Application& app);

/// The same from a file of any name. Nothing where it cannot be read (after the platform's words)
/// or has another tag.
Taken ReadSoundListFile(Application& app, TextView path);

/// Where the state of the last run is kept.
Text StateFilePath(const Application& app);

/// Writes a text of the program folder. A file there that was not read to its end is not replaced:
/// it is set aside as NAME.kept-YYYY-MM-DD, and a box says so. False after the platform's
/// words.
bool WriteProgramFile(Application& app, TextView path, TextView content);

}  // namespace document
