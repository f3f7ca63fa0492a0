INSERT INTO ZNOTE VALUES (1, 'Shopping', 501600000.0), (2, 'Plum cake', 501700000.0);
INSERT INTO ZNOTEBODY VALUES (1, 1, 'Milk<br>Flour<br>Plums'), (2, 2, 'Bake at 180 °C until the juice is thick.');
