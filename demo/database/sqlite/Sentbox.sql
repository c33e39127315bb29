-- The mailbox of messages sent. A message is named by its reference number, its sender and
-- the date-time at which it was stored (a day number: days since 1899-12-30, time as fraction).
-- Ref1 to Ref5 are the user-defined reference fields of the message's service.
CREATE TABLE Sentbox (
  RefNo varchar(35) NOT NULL,
  DateTime datetime NOT NULL,
  Sender varchar(35) NOT NULL,
  MType varchar(10) NOT NULL,
  Recipient varchar(35) NOT NULL,
  Service varchar(10),
  Subject nvarchar(100),
  Status varchar(10),
  FileName varchar(255),
  MsgSize int,
  UserName nvarchar(20),
  Ref1 nvarchar(35),
  Ref2 nvarchar(35),
  Ref3 nvarchar(35),
  Ref4 nvarchar(35),
  Ref5 nvarchar(35)
);
CREATE INDEX ix_Sentbox_RefNo ON Sentbox (RefNo, Sender, DateTime);
CREATE INDEX ix_Sentbox_DateTime ON Sentbox (DateTime);
