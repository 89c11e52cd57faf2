#pragma once
// The small pictures of the dashboard, painted by the program: the alarm of overdue plans, the
// "more" picture that opens a whole list, the magnifier of the planned sums, and the five
// pictures of the chart buttons.

#include <QPixmap>

QPixmap ObrazekAlarmu(int rozmiar);
QPixmap ObrazekWiecej(int rozmiar);
QPixmap ObrazekLupki(int rozmiar);
// Chart modes 0 to 4: balances in columns, balances in a pie, income, expense, both.
QPixmap ObrazekWykresu(int tryb, int rozmiar);
