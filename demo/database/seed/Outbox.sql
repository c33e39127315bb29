-- Messages of the demo mailbox MVDEMO01 waiting to be sent. Dates are day numbers: the Julian day
-- less 2415018.5.
INSERT INTO Outbox (RefNo, DateTime, Sender, MType, Recipient, Service, Subject, Status, FileName, MsgSize, UserName, Ref1, Ref2) VALUES ('TD24000131', julianday('2024-11-08 16:45:09') - 2415018.5, 'MVDEMO01', 'HKTDEC',
  'hkgovt', 'TDEC', 'Export declaration: garments to Rotterdam', 'READY', 'TD24000131.EDI', 4096, 'DEMO', 'PO-88175', 'Rotterdam');
INSERT INTO Outbox (RefNo, DateTime, Sender, MType, Recipient, Service, Subject, Status, FileName, MsgSize, UserName, Ref1, Ref2) VALUES ('RC24000052', julianday('2024-11-08 17:03:31') - 2415018.5, 'MVDEMO01', 'HKRCMF',
  'hkgovt', 'RCM', '陸路貨物艙單', 'DRAFT', 'RC24000052.EDI', 2750, 'CHANTM', 'LK-2291', NULL);
