#!/usr/bin/env python3
"""Writes seed/Holiday.sql, seed/ZHoliday.sql and seed/YHoliday.sql: the Hong Kong general
holidays of the years below, from Debian's python3-holidays, named as the Hong Kong Government
publishes them (English, Traditional Chinese, Simplified Chinese).

Run it from any folder after changing YEARS; commit the seed files it writes. The dates of 2024
to 2026 were checked against the lists of general holidays published at
https://www.gov.hk/en/about/abouthk/holiday/; those of 2027 follow the rules of the General
Holidays Ordinance (Cap. 149) and were not yet compared with that year's published list.
"""
import datetime
import pathlib

import holidays

YEARS = range(2024, 2028)

# python3-holidays name -> (English, Traditional Chinese, Simplified Chinese) as published.
NAMES = {
    "The first day of January": ("The first day of January", "一月一日", "一月一日"),
    "Lunar New Year's Day": ("Lunar New Year's Day", "農曆年初一", "农历年初一"),
    "The second day of Lunar New Year": ("The second day of Lunar New Year", "農曆年初二", "农历年初二"),
    "The third day of Lunar New Year": ("The third day of Lunar New Year", "農曆年初三", "农历年初三"),
    "The fourth day of Lunar New Year": ("The fourth day of Lunar New Year", "農曆年初四", "农历年初四"),
    "Good Friday": ("Good Friday", "耶穌受難節", "耶稣受难节"),
    "The day following Good Friday": ("The day following Good Friday", "耶穌受難節翌日", "耶稣受难节翌日"),
    "Easter Monday": ("Easter Monday", "復活節星期一", "复活节星期一"),
    "The day following Easter Monday": ("The day following Easter Monday", "復活節星期一翌日", "复活节星期一翌日"),
    "Ching Ming Festival": ("Ching Ming Festival", "清明節", "清明节"),
    "The day following Ching Ming Festival": ("The day following Ching Ming Festival", "清明節翌日", "清明节翌日"),
    "Labour Day": ("Labour Day", "勞動節", "劳动节"),
    "Birthday of the Buddha": ("The Birthday of the Buddha", "佛誕", "佛诞"),
    "The day following Birthday of the Buddha": ("The day following the Birthday of the Buddha", "佛誕翌日", "佛诞翌日"),
    "Tuen Ng Festival": ("Tuen Ng Festival", "端午節", "端午节"),
    "Hong Kong Special Administrative Region Establishment Day": (
        "Hong Kong Special Administrative Region Establishment Day",
        "香港特別行政區成立紀念日", "香港特别行政区成立纪念日"),
    "The day following the Chinese Mid-Autumn Festival": (
        "The day following the Chinese Mid-Autumn Festival", "中秋節翌日", "中秋节翌日"),
    "National Day": ("National Day", "國慶日", "国庆日"),
    "Chung Yeung Festival": ("Chung Yeung Festival", "重陽節", "重阳节"),
    "The day following Chung Yeung Festival": ("The day following Chung Yeung Festival", "重陽節翌日", "重阳节翌日"),
    "Christmas Day": ("Christmas Day", "聖誕節", "圣诞节"),
    "The first weekday after Christmas Day": (
        "The first weekday after Christmas Day", "聖誕節後第一個周日", "圣诞节后第一个周日"),
}

TABLES = (("Holiday", 0, "English"), ("ZHoliday", 1, "Traditional Chinese"),
          ("YHoliday", 2, "Simplified Chinese"))


def rows():
    found = holidays.HongKong(years=list(YEARS))
    for day, name in sorted(found.items()):
        if name not in NAMES:
            raise SystemExit(f"no published name for {name!r} on {day}")
        yield day, NAMES[name]


def write(folder, table, column, language):
    lines = [
        f"-- Hong Kong general holidays {YEARS[0]} to {YEARS[-1]}, named in {language}, as the",
        "-- Hong Kong Government publishes them (https://www.gov.hk/en/about/abouthk/holiday/).",
        "-- Written by generate_holidays.py. A date is stored as its day number: the Julian day",
        "-- less 2415018.5, the Julian day of 1899-12-30 00:00.",
    ]
    for day, names in rows():
        text = names[column].replace("'", "''")
        lines.append(f"INSERT INTO {table} (HolDate, HolName) VALUES "
                     f"(julianday('{day.isoformat()}') - 2415018.5, '{text}');")
    (folder / f"{table}.sql").write_text("\n".join(lines) + "\n", encoding="utf-8")


def main():
    folder = pathlib.Path(__file__).resolve().parent / "seed"
    for table, column, language in TABLES:
        write(folder, table, column, language)


if __name__ == "__main__":
    main()
