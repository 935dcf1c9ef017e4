-- modulon wizard: %m%
-- GENERATION: STANDARD
-- VERSION: WM1.0
-- MODULE: a b c d
Retrieval info:
x Retrieval info:y
-- Retrieval info: CONNECT: q
