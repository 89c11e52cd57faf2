#pragma once
// Registers the template lists and editors, the receipt and the recurring rules with the
// navigation seam.

void ZarejestrujSzablonyParagonOkresowe();
