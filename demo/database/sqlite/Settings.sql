-- The captions of the user-defined reference fields of each service: one row per configured field
-- (FieldNo 1 to 5, shown in the mailbox columns Ref1 to Ref5). A field without a row, or with an
-- empty caption, is captioned "Ref #1" .. "Ref #5".
CREATE TABLE Settings (
  Service varchar(30) NOT NULL,
  FieldNo int NOT NULL CHECK (FieldNo BETWEEN 1 AND 5),
  EngCaption nvarchar(50),
  ChiCaption nvarchar(50),
  PRIMARY KEY (Service, FieldNo)
);
