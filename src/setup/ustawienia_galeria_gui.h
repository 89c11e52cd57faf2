#pragma once
// The set-up screens for the gallery: the wizard's steps with a set chosen, the main window and
// an editor in each colour profile, the active and inactive pair, the colour, settings and
// configuration screens, the companion over a sample file, a help page and the about box.

#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

using EkranGaleriiUstawien = std::pair<QString, std::function<std::unique_ptr<QWidget>()>>;
std::vector<EkranGaleriiUstawien> GaleriaUstawien();
