-- The users of the installation, one row each. Preference holds every per-user setting as lines
-- key=value, each followed by CR LF. User ids compare without regard to case, as on the server.
CREATE TABLE sysuser (
  userid nvarchar(20) NOT NULL COLLATE NOCASE PRIMARY KEY,
  UserName nvarchar(60),
  Department nvarchar(60),
  Email varchar(100),
  Language smallint NOT NULL DEFAULT 1,
  Disabled bit NOT NULL DEFAULT 0,
  CreateDate datetime,
  Preference ntext
);
