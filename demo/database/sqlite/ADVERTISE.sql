-- The advertisement schedule: each file (under the installation's Advertise folder) is shown in
-- AdvSeq order for Duration seconds from StartDate through EndDate (day numbers).
CREATE TABLE ADVERTISE (
  AdvSeq integer NOT NULL PRIMARY KEY,
  AdvFile nvarchar(255) NOT NULL,
  Duration int NOT NULL DEFAULT 10,
  Enlarge bit NOT NULL DEFAULT 0,
  URL varchar(255),
  StartDate datetime NOT NULL,
  EndDate datetime NOT NULL
);
