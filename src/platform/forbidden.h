// Put in front of every source of the logic by the build. The logic reads no clock, file or random
// number and starts no thread of its own, or a run on the virtual clock could not be repeated.
// Each name below becomes one that does not exist and that says what to use instead.
//
// The standard headers that use these names inside themselves come first.
#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <future>
#include <iostream>
#include <memory>
#include <mutex>
#include <random>
#include <ranges>
#include <shared_mutex>
#include <string>
#include <thread>
#include <unordered_map>

#define system_clock FORBIDDEN_use_platform_EventLoop_Now
#define steady_clock FORBIDDEN_use_platform_EventLoop_Milliseconds
#define high_resolution_clock FORBIDDEN_use_platform_EventLoop_Milliseconds
#define gettimeofday FORBIDDEN_use_platform_EventLoop_Now
#define clock_gettime FORBIDDEN_use_platform_EventLoop_Milliseconds
#define localtime FORBIDDEN_use_platform_ToCalendar
#define gmtime FORBIDDEN_use_platform_ToCalendar

#define sleep_for FORBIDDEN_use_platform_EventLoop_Sleep
#define sleep_until FORBIDDEN_use_platform_EventLoop_Sleep
#define usleep FORBIDDEN_use_platform_EventLoop_Sleep
#define nanosleep FORBIDDEN_use_platform_EventLoop_Sleep

#define random_device FORBIDDEN_use_platform_EventLoop_Rnd
#define mt19937 FORBIDDEN_use_platform_EventLoop_Rnd
#define mt19937_64 FORBIDDEN_use_platform_EventLoop_Rnd
#define default_random_engine FORBIDDEN_use_platform_EventLoop_Rnd
#define srand FORBIDDEN_use_platform_EventLoop_Rnd

#define fopen FORBIDDEN_use_platform_Files
#define freopen FORBIDDEN_use_platform_Files
#define ifstream FORBIDDEN_use_platform_Files
#define ofstream FORBIDDEN_use_platform_Files
#define fstream FORBIDDEN_use_platform_Files
#define filesystem FORBIDDEN_use_platform_Files

#define jthread FORBIDDEN_the_logic_has_one_thread
#define async FORBIDDEN_the_logic_has_one_thread
