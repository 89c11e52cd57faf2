#pragma once
// The login to the support service and where the service lives. The identifier and the password
// sit in the setup row (and in pubUstawienia for the session); the service's address in setup's
// adresserwisu column, empty for the default. The password is never written to the log.

#include <QString>

struct LogowanieSerwisu {
  QString userid;
  QString hasloserwisu;
  QString adres;  // as stored: "" means the default address
};

// The service the program talks to when the user has set no address of their own.
QString DomyslnyAdresSerwisu();
// The address in force: the stored one, or the default.
QString AdresSerwisu();
// True for an http:// or https:// address with a host and no query or fragment.
bool PoprawnyAdresSerwisu(const QString& adres);

// The login as stored ("SELECT * FROM setup").
LogowanieSerwisu CzytajLogowanie();
// Writes identifier, password and address into setup and the session. The statement carries
// the password as a bound value, so that not even a failed write puts it into the log. False
// (with the reason in blad) when the store refused.
bool ZapiszLogowanie(const LogowanieSerwisu& l, QString* blad = nullptr);

// How long one call to the service may take, in milliseconds (20 s unless set).
int LimitCzasuSerwisu();
void UstawLimitCzasuSerwisu(int ms);
