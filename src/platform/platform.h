// Everything the program asks of its surroundings, handed in once at start.
#pragma once

#include "platform/canvas.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/event_loop.h"
#include "platform/file_changes.h"
#include "platform/file_inquiry.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/imaging.h"
#include "platform/monitors.h"
#include "platform/sound.h"
#include "platform/system.h"
#include "platform/thumbnails.h"
#include "platform/trace.h"
#include "platform/user_settings.h"
#include "platform/video.h"
#include "platform/wallpaper.h"
#include "text/code_page.h"

namespace platform {

struct Platform {
    EventLoop& loop;
    Files& files;
    Dialogs& dialogs;
    Monitors& monitors;
    Imaging& imaging;
    TextRenderer& textRenderer;
    Sound& sound;
    Video& video;
    System& system;
    Trace& trace;
    const text::CodePage& codePage;
    Folders& folders;
    FileChanges& fileChanges;
    Clipboard& clipboard;
    Wallpaper& wallpaper;
    Thumbnails& thumbnails;
    FileInquiry& fileInquiry;
    UserSettings settings = {};
};

}  // namespace platform
