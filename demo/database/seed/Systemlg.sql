-- A few events of the demo user. Dates are day numbers: the Julian day less 2415018.5.
INSERT INTO Systemlg (DateTime, UserName, Event, RefNo, Type, Status)
  VALUES (julianday('2024-11-04 09:12:05') - 2415018.5, 'DEMO', 'Login', '', 'SYSTEM', 'OK');
INSERT INTO Systemlg (DateTime, UserName, Event, RefNo, Type, Status)
  VALUES (julianday('2024-11-04 09:15:30') - 2415018.5, 'DEMO', 'Send', 'TD24000123', 'HKTDEC', 'OK');
INSERT INTO Systemlg (DateTime, UserName, Event, RefNo, Type, Status)
  VALUES (julianday('2024-11-04 09:41:12') - 2415018.5, 'DEMO', 'Receive', 'TD24000123', 'HKTDLD', 'OK');
