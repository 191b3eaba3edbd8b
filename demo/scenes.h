// The pictures of the demo show, each drawn by one function.
#pragma once

#include <QImage>

namespace demo {

QImage DawnAtFuji();
QImage GateInTheSea();
QImage InkMountains();
QImage MilkyWay();
QImage MoonOverTheSea();

QImage CherryBlossoms();
QImage KoiPond();
QImage BambooPath();
QImage AutumnLeaves();

QImage Fireworks();
QImage CityLights();
QImage SnowVillage();

QImage SeaWavePattern();
QImage HempLeafPattern();

}  // namespace demo
