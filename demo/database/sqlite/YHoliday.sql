-- Public holidays of the Simplified Chinese edition: holiday names in Simplified Chinese. One row per holiday, the date
-- at midnight as a day number (days since 1899-12-30).
CREATE TABLE YHoliday (
  HolDate datetime NOT NULL PRIMARY KEY,
  HolName nvarchar(80)
);
