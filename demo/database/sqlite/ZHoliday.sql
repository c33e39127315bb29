-- Public holidays of the Chinese edition: holiday names in Traditional Chinese. One row per holiday, the date
-- at midnight as a day number (days since 1899-12-30).
CREATE TABLE ZHoliday (
  HolDate datetime NOT NULL PRIMARY KEY,
  HolName nvarchar(80)
);
