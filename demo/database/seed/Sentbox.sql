-- Messages sent by the demo mailbox MVDEMO01. Dates are day numbers: the Julian day less
-- 2415018.5.
INSERT INTO Sentbox (RefNo, DateTime, Sender, MType, Recipient, Service, Subject, Status, FileName, MsgSize, UserName, Ref1, Ref2) VALUES ('TD24000123', julianday('2024-11-04 09:15:30') - 2415018.5, 'MVDEMO01', 'HKTDEC',
  'hkgovt', 'TDEC', 'Import declaration: electronic parts', 'SENT', 'TD24000123.EDI', 3890, 'DEMO', 'PO-88121', 'Shenzhen');
INSERT INTO Sentbox (RefNo, DateTime, Sender, MType, Recipient, Service, Subject, Status, FileName, MsgSize, UserName, Ref1, Ref2) VALUES ('TD24000124', julianday('2024-11-05 11:30:02') - 2415018.5, 'MVDEMO01', 'HKTDAM',
  'hkgovt', 'TDEC', 'Amendment: quantity of line 2', 'SENT', 'TD24000124.EDI', 2014, 'DEMO', 'PO-88140', 'Dongguan');
INSERT INTO Sentbox (RefNo, DateTime, Sender, MType, Recipient, Service, Subject, Status, FileName, MsgSize, UserName, Ref1, Ref2) VALUES ('CO24000310', julianday('2024-11-05 15:12:44') - 2415018.5, 'MVDEMO01', 'HKCOAP',
  'hkgovt', 'COO', '產地來源證申請', 'SENT', 'CO24000310.EDI', 5120, 'CHANTM', 'INV-5531', NULL);
