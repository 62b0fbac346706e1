// The machine's clock, handed in where today's date is printed.
#pragma once

#include <QDate>

#include "core/dates.h"

namespace kel {

inline date today() {
    const QDate now = QDate::currentDate();
    return make_date(now.day(), now.month(), now.year());
}

}  // namespace kel
