// The files in the program folder that keep what is no document's business.
#pragma once

#include "model/application.h"

namespace document {

/// autstart.dat: the whole state of the last run. Not built yet: neither reads nor writes.
void ReadStateFile(Application& app);
void WriteStateFile(Application& app);

/// uautst.dat: the link window's list and flags. Not built yet: neither reads nor writes.
void ReadLinkStateFile(Application& app);
void WriteLinkStateFile(Application& app);

/// wavlist.dat: the sound list. A missing file or one with another tag leaves everything as it is;
/// a failed write shows the platform's words.
void ReadSoundListFile(Application& app);
void WriteSoundListFile(Application& app);

/// The same from a file of any name. False where it cannot be read (after the platform's words)
/// or has another tag.
bool ReadSoundListFile(Application& app, TextView path);

}  // namespace document
