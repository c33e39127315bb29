-- Public holidays of the English edition: holiday names in English. One row per holiday, the date
-- at midnight as a day number (days since 1899-12-30).
CREATE TABLE Holiday (
  HolDate datetime NOT NULL PRIMARY KEY,
  HolName nvarchar(80)
);
