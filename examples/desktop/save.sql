-- Brings the tables in line with temp.books, which has a row for each bank, without a number, and one for each
-- account. What is the same stays untouched, and a rename is the update of one row.
UPDATE banks SET name = (SELECT bank FROM books WHERE bank NOT IN (SELECT name FROM banks))
  WHERE name NOT IN (SELECT bank FROM books)
  AND 1 = (SELECT count(*) FROM banks WHERE name NOT IN (SELECT bank FROM books))
  AND 1 = (SELECT count(DISTINCT bank) FROM books WHERE bank NOT IN (SELECT name FROM banks));
INSERT INTO banks (name, closed)
  SELECT bank, closed FROM books WHERE number IS NULL
  ON CONFLICT (name) DO UPDATE SET closed = excluded.closed WHERE closed <> excluded.closed;
REPLACE INTO accounts (number, bank, kind, currency, minor_units, occurred_on)
  SELECT number, id, kind, currency, iif(currency IS NULL, NULL, minor_units), occurred_on
  FROM books JOIN banks ON name = books.bank WHERE number IS NOT NULL
  EXCEPT SELECT number, bank, kind, currency, minor_units, occurred_on FROM accounts;
DELETE FROM accounts WHERE number NOT IN (SELECT number FROM books WHERE number IS NOT NULL);
DELETE FROM banks WHERE name NOT IN (SELECT bank FROM books);
DELETE FROM books;
