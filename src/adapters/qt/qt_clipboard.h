// The desktop's clipboard by the toolkit.
#pragma once

#include "platform/clipboard.h"

namespace qt_adapter {

/// Used once there is an application object.
class QtClipboard : public platform::Clipboard {
public:
    void PutText(TextView text) override;
    void PutPicture(const platform::BitmapPtr& picture) override;
    void PutFiles(const std::vector<Text>& paths) override;
    Text GetText() override;
    std::vector<Text> GetFiles() override;
};

}  // namespace qt_adapter
