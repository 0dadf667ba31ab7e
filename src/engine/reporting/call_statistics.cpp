#include "reporting/call_statistics.h"

namespace tallix {

CallStatistics::CallStatistics(const DatabaseAddress& address)
    : database_(address), calls_(database_.Edit("select * from tblphonedata")) {}

}  // namespace tallix
