// How the process takes memory from the system and gives it back.
#pragma once

namespace posix_adapter {

/// For a program that takes and frees pictures of some megabytes all the time: what is freed is
/// used again, by every thread, before new pages are asked for. To be called before there are
/// threads.
void ReuseFreedPictures();

}  // namespace posix_adapter
