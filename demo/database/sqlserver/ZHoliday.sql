-- Public holidays of the Chinese edition: holiday names in Traditional Chinese. One row per holiday, the date
-- at midnight.
CREATE TABLE ZHoliday (
  HolDate datetime NOT NULL PRIMARY KEY,
  HolName nvarchar(80) NULL
);
