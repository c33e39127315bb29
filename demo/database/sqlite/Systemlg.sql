-- The system log: one row per event the client records. LogNo is assigned by the database.
-- Dates are day numbers (days since 1899-12-30, the time of day as fraction).
CREATE TABLE Systemlg (
  LogNo integer PRIMARY KEY AUTOINCREMENT,
  DateTime datetime NOT NULL,
  UserName nvarchar(20),
  Event nvarchar(100),
  RefNo nvarchar(35),
  Type nvarchar(50),
  Status nvarchar(50)
);
CREATE INDEX ix_Systemlg_DateTime ON Systemlg (DateTime);
