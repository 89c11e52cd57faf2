#include "store/session.h"

Session sesja;
