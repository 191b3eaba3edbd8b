// The order in which people expect names: 2 before 10, without case.
#pragma once

#include "text/text.h"

namespace text {

/// True when `a` stands before `b`. Digits in a row, narrow or full-width, count as one number;
/// letters are compared without case. Names that differ in case or leading zeros only have an order
/// too, so that a sorted list is always the same.
bool NaturalLess(TextView a, TextView b);

}  // namespace text
