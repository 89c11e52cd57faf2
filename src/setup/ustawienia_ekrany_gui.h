#pragma once
// Registers the screens of the set-up folder: the wizard's windows and the settings screens.
void ZarejestrujEkranyUstawien();
