-- The demo users. DEMO is the user the demo programs sign in as.
INSERT INTO sysuser (userid, UserName, Department, Email, Language, Disabled, CreateDate)
  VALUES ('DEMO', 'Demo User', 'Shipping', 'demo@example.com', 1, 0, julianday('2024-01-02') - 2415018.5);
INSERT INTO sysuser (userid, UserName, Department, Email, Language, Disabled, CreateDate)
  VALUES ('CHANTM', '陳大文', '船務部', 'chantm@example.com', 0, 0, julianday('2024-03-18') - 2415018.5);
