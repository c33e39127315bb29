-- Public holidays of the English edition: holiday names in English. One row per holiday, the date
-- at midnight.
CREATE TABLE Holiday (
  HolDate datetime NOT NULL PRIMARY KEY,
  HolName nvarchar(80) NULL
);
