INSERT INTO ABPerson VALUES
    (1, 'Orla', 'Finch', NULL, 'Ferry on Saturdays'),
    (2, 'Jürgen', 'Groß', 'Larkham Ferries', NULL),
    (3, 'Mei', 'O''Dell', NULL, 'allergic to "plum"');
INSERT INTO ABMultiValue VALUES
    (1, 1, 3, '+1 555 0100'), (2, 1, 4, 'orla@example.org'), (3, 2, 3, '+1 555 0123'), (4, 3, 3, '+1 555 0177');
INSERT INTO ABGroup VALUES (1, 'Family');
