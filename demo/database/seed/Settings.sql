-- The demo's trade declarations carry the purchase order and the place of origin in their first
-- two reference fields; the other three keep their default captions.
INSERT INTO Settings (Service, FieldNo, EngCaption, ChiCaption) VALUES ('TDEC_SERVICE', 1, 'Purchase Order', '訂單編號');
INSERT INTO Settings (Service, FieldNo, EngCaption, ChiCaption) VALUES ('TDEC_SERVICE', 2, 'Origin', '原產地');
INSERT INTO Settings (Service, FieldNo, EngCaption, ChiCaption) VALUES ('COO_SERVICE', 1, 'Invoice No.', '發票號碼');
