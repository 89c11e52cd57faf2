#pragma once
// Registers the planning screens with the navigation seam: the calendar, the category change
// simulation and its report.

void ZarejestrujEkranyPlanowania();
