-- The mailbox of messages sent. A message is named by its reference number, its sender and
-- the date-time at which it was stored. Ref1 to Ref5 are the user-defined reference fields of the
-- message's service.
CREATE TABLE Sentbox (
  RefNo varchar(35) NOT NULL,
  [DateTime] datetime NOT NULL,
  Sender varchar(35) NOT NULL,
  MType varchar(10) NOT NULL,
  Recipient varchar(35) NOT NULL,
  Service varchar(10) NULL,
  Subject nvarchar(100) NULL,
  Status varchar(10) NULL,
  FileName varchar(255) NULL,
  MsgSize int NULL,
  UserName nvarchar(20) NULL,
  Ref1 nvarchar(35) NULL,
  Ref2 nvarchar(35) NULL,
  Ref3 nvarchar(35) NULL,
  Ref4 nvarchar(35) NULL,
  Ref5 nvarchar(35) NULL
);
CREATE INDEX ix_Sentbox_RefNo ON Sentbox (RefNo, Sender, [DateTime]);
CREATE INDEX ix_Sentbox_DateTime ON Sentbox ([DateTime]);
