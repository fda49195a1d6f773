INSERT INTO banks (id, name, closed) VALUES
  (1, 'Main Street Credit Union', 0),
  (2, 'Caisse des Deux-Rivières', 0),
  (3, 'Nordlicht Sparkasse Büsum', 0),
  (4, 'Sparisjóður Norðurfjarðar', 0),
  (5, 'Prairie Trust', 1);
INSERT INTO accounts (number, bank, kind, currency, minor_units, occurred_on) VALUES
  (1010, 1, 'Chequeing', 'CAD', 284512, '2026-10-31'),
  (1020, 1, 'Savings', 'CAD', 1541093, '2026-10-31'),
  (1030, 1, 'Goal', 'CAD', 400000, '2026-10-31'),
  (2010, 1, 'Credit Card', 'CAD', -174075, '2026-10-31'),
  (1110, 2, 'Chequeing', 'CAD', 158705, '2026-10-31'),
  (1120, 2, 'Goal', 'CAD', 240000, '2026-10-31'),
  (2110, 2, 'Loan', 'CAD', -17862186, '2026-10-31'),
  (1210, 3, 'Savings', 'EUR', 420295, '2026-09-30'),
  (1310, 4, 'Savings', 'ISK', 175302, '2026-09-30'),
  (1410, 5, 'Savings', NULL, NULL, NULL);
