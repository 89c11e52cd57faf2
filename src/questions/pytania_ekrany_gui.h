#pragma once
// The questions screens under their form names, for the navigation seam.

void ZarejestrujEkranyPytan();
