-- Messages received by the demo mailbox MVDEMO01. Dates are day numbers: the Julian day less
-- 2415018.5.
INSERT INTO Inbox (RefNo, DateTime, Sender, MType, Recipient, Service, Subject, Status, FileName, MsgSize, UserName, Ref1, Ref2) VALUES ('TD24000123', julianday('2024-11-04 09:41:12') - 2415018.5, 'hkgovt', 'HKTDLD',
  'MVDEMO01', 'TDEC', 'Trade declaration lodged', 'READ', 'TD24000123.LD', 1824, 'DEMO', 'PO-88121', 'Shenzhen');
INSERT INTO Inbox (RefNo, DateTime, Sender, MType, Recipient, Service, Subject, Status, FileName, MsgSize, UserName, Ref1, Ref2) VALUES ('TD24000124', julianday('2024-11-05 14:02:47') - 2415018.5, 'hkgovt', 'HKCTRA',
  'MVDEMO01', 'TDEC', 'Declaration charges advice', 'NEW', 'TD24000124.CT', 2310, 'DEMO', 'PO-88140', 'Dongguan');
INSERT INTO Inbox (RefNo, DateTime, Sender, MType, Recipient, Service, Subject, Status, FileName, MsgSize, UserName, Ref1, Ref2) VALUES ('CO24000310', julianday('2024-11-06 10:20:00') - 2415018.5, 'hkgovt', 'HKCORS',
  'MVDEMO01', 'COO', '產地來源證申請回覆', 'NEW', 'CO24000310.RS', 3102, 'CHANTM', 'INV-5531', NULL);
INSERT INTO Inbox (RefNo, DateTime, Sender, MType, Recipient, Service, Subject, Status, FileName, MsgSize, UserName, Ref1, Ref2) VALUES ('NT24001001', julianday('2024-11-07 08:00:00') - 2415018.5, 'MEROVAN', 'HKNOTC',
  'MVDEMO01', 'SYSTEM', 'Service maintenance on 10 November 2024', 'NEW', 'NT24001001.NT', 640, NULL, NULL, NULL);
