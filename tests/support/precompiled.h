// What every test includes, compiled once for all of them. A test includes what it uses all the
// same.
#pragma once

#include <gtest/gtest.h>
