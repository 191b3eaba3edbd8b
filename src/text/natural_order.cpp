#include "text/natural_order.h"

namespace text {

namespace {

/// 0 to 9 of a narrow or full-width digit, -1 of any other character.
int Digit(char16_t c) {
    if (c >= u'0' && c <= u'9') {
        return c - u'0';
    }
    return c >= u'０' && c <= u'９' ? c - u'０' : -1;
}

/// The digits at the beginning of `rest`, taken off it; leading zeros are left out.
Text TakeNumber(TextView& rest) {
    Text digits;
    while (!rest.empty() && Digit(rest.front()) >= 0) {
        if (!digits.empty() || Digit(rest.front()) > 0) {
            digits += static_cast<char16_t>(u'0' + Digit(rest.front()));
        }
        rest.remove_prefix(1);
    }
    return digits;
}

int Compare(TextView a, TextView b) {
    return a < b ? -1 : a > b ? 1 : 0;
}

/// Below 0, 0 or above 0.
int CompareNatural(TextView a, TextView b) {
    while (!a.empty() && !b.empty()) {
        if (Digit(a.front()) >= 0 && Digit(b.front()) >= 0) {
            const Text numberA = TakeNumber(a);
            const Text numberB = TakeNumber(b);
            if (numberA.size() != numberB.size()) {
                return numberA.size() < numberB.size() ? -1 : 1;
            }
            if (const int order = Compare(numberA, numberB); order != 0) {
                return order;
            }
            continue;
        }
        if (a.front() != b.front()) {
            const int order = Compare(Upper(a.substr(0, 1)), Upper(b.substr(0, 1)));
            if (order != 0) {
                return order;
            }
        }
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    return a.empty() ? (b.empty() ? 0 : -1) : 1;
}

}  // namespace

bool NaturalLess(TextView a, TextView b) {
    const int order = CompareNatural(a, b);
    return order != 0 ? order < 0 : a < b;
}

}  // namespace text
