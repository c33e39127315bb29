-- The system log: one row per event the client records. LogNo is assigned by the database.
CREATE TABLE Systemlg (
  LogNo int IDENTITY(1,1) NOT NULL PRIMARY KEY,
  [DateTime] datetime NOT NULL,
  UserName nvarchar(20) NULL,
  Event nvarchar(100) NULL,
  RefNo nvarchar(35) NULL,
  [Type] nvarchar(50) NULL,
  Status nvarchar(50) NULL
);
CREATE INDEX ix_Systemlg_DateTime ON Systemlg ([DateTime]);
