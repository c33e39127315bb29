-- The demo advertisement schedule. Dates are day numbers: the Julian day less 2415018.5.
INSERT INTO ADVERTISE (AdvSeq, AdvFile, Duration, Enlarge, URL, StartDate, EndDate)
  VALUES (1, 'welcome.htm', 15, 0, '', julianday('2024-01-01') - 2415018.5, julianday('2030-12-31') - 2415018.5);
INSERT INTO ADVERTISE (AdvSeq, AdvFile, Duration, Enlarge, URL, StartDate, EndDate)
  VALUES (2, 'tdec_guide.jpg', 10, 1, 'https://www.example.com/tdec-guide', julianday('2024-01-01') - 2415018.5,
  julianday('2030-12-31') - 2415018.5);
