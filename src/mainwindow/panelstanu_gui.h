#pragma once
// The balance panel of the dashboard: the balance of each of the six kinds of account, their
// total, the calendar month's income, expense and balance, and the chart in one of its five
// modes. Each caption opens the entries behind its figure.

#include <QWidget>
#include <array>

class EtykietaPolecenia;
class QChartView;
class QLabel;
class QPushButton;

class PanelStanu : public QWidget {
  Q_OBJECT
 public:
  explicit PanelStanu(QWidget* rodzic);

  // Recomputes every figure and draws the chart again.
  void StanKont();
  // Draws the chart of the mode in pubUstawienia.pubWykres.
  void RysujWykres();
  // cmdWykres(i): another mode is drawn; the same one does nothing.
  void WybierzWykres(int tryb);
  // A click on the chart or its caption: the next mode, 4 wrapping to 0.
  void NastepnyWykres();

  // The balance of each kind 1 to 6 as the last StanKont found it, kept for the charts.
  const std::array<double, 7>& SaldaKont() const { return saldaKont_; }
  QChartView* Wykres() const { return chartWykres_; }

 protected:
  bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

 private:
  QWidget* zbudujStan();
  QWidget* zbudujWykres();

  std::array<double, 7> saldaKont_{};
  std::array<QLabel*, 7> lblKonto_{};
  std::array<EtykietaPolecenia*, 6> lblStanKont_{};
  std::array<EtykietaPolecenia*, 2> lblStanObrotow_{};
  QLabel* lblSuma_ = nullptr;
  QLabel* lblMiesiac_ = nullptr;
  QLabel* lblPrzychody_ = nullptr;
  QLabel* lblWydatki_ = nullptr;
  QLabel* lblBilans_ = nullptr;
  EtykietaPolecenia* lblWykres_ = nullptr;
  QChartView* chartWykres_ = nullptr;
  std::array<QPushButton*, 5> cmdWykres_{};
  QWidget* chowacz_ = nullptr;
};
