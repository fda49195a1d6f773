-- Each account, and each bank without a number; shown is what tells the row from others.
SELECT number AS shown, name, closed, number, kind, currency, minor_units, occurred_on,
  coalesce(currency, minor_units, occurred_on) AS report
  FROM accounts LEFT JOIN banks ON banks.id = bank
  UNION ALL SELECT name, name, closed, NULL, NULL, NULL, NULL, NULL, NULL FROM banks
  ORDER BY number NULLS LAST
