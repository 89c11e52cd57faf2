#pragma once
// Registers every screen of the program with the navigation seam, once, at start-up. A new
// screen adds its line here, and every command and button that opens it is enabled from then on.

void ZarejestrujEkrany();
