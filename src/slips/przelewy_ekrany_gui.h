#pragma once
// Registers the payment slip screens with the navigation seam: the editor and the print-out.

void ZarejestrujEkranyPrzelewow();
