#include "common/dates/time_units.h"

namespace mv {

std::array<char, kTimeUnitCount> TimeUnitArray = {'D', 'W', 'M', 'Y'};
std::array<std::u16string, kTimeUnitCount> TimeUnitEngDescSingle = {u"Day", u"Week", u"Month",
                                                                    u"Year"};
std::array<std::u16string, kTimeUnitCount> TimeUnitEngDescMulti = {u"Days", u"Weeks", u"Months",
                                                                   u"Years"};
std::array<std::u16string, kTimeUnitCount> TimeUnitEngDesc = {u"Day(s)", u"Week(s)", u"Month(s)",
                                                              u"Year(s)"};
std::array<std::u16string, kTimeUnitCount> TimeUnitChiDesc = {u"日", u"星期", u"月", u"年"};

}  // namespace mv
