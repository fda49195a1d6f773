PRAGMA foreign_keys = ON;
-- The books as they are to be: a row for each bank, without a number, and one for each account.
CREATE TEMP TABLE books (bank, closed, number, kind, currency, minor_units, occurred_on);
