INSERT INTO ZACCOUNT VALUES (1, 'robin@example.org', 'Mail', 1), (2, 'robin.work@example.org', 'Office', 1);
