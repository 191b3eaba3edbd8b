#include "adapters/qt/virtual_keys.h"

#include <Qt>

namespace qt_adapter {

namespace {

struct KeyRow {
    int qtKey;
    int number;
};

constexpr KeyRow kKeys[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},      {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},    {Qt::Key_Pause, 19},
    {Qt::Key_Escape, 27},   {Qt::Key_Space, 32},   {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},      {Qt::Key_Home, 36},    {Qt::Key_Left, 37},   {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},    {Qt::Key_Down, 40},    {Qt::Key_Insert, 45}, {Qt::Key_Delete, 46},
};
constexpr int kF1 = 112;

}  // namespace

int VirtualKey(int qtKey) {
    for (const KeyRow& row : kKeys) {
        if (row.qtKey == qtKey) {
            return row.number;
        }
    }
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) {
        return kF1 + (qtKey - Qt::Key_F1);
    }
    // Letters and digits have the number of their character in both systems.
    const bool letter = qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z;
    const bool digit = qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9;
    return letter || digit ? qtKey : 0;
}

}  // namespace qt_adapter
