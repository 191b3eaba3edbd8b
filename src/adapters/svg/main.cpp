// The process that draws SVG: started by the program.

#include <QGuiApplication>
#include <memory>

#include "adapters/confine/serve.h"
#include "adapters/svg/draw.h"

int main(int argc, char** argv) {
    std::unique_ptr<QGuiApplication> application;
    const auto warmUp = [&] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QGuiApplication>(argc, argv);
        svg::WarmUp();
    };
    confine::RunService(argc, argv, {{sandbox::Role::Svg, warmUp, svg::Draw, svg::Measure, {}}});
}
