-- The users of the installation, one row each. Preference holds every per-user setting as lines
-- key=value, each followed by CR LF.
CREATE TABLE sysuser (
  userid nvarchar(20) NOT NULL PRIMARY KEY,
  UserName nvarchar(60) NULL,
  Department nvarchar(60) NULL,
  Email varchar(100) NULL,
  Language smallint NOT NULL DEFAULT 1,
  Disabled bit NOT NULL DEFAULT 0,
  CreateDate datetime NULL,
  Preference nvarchar(max) NULL
);
