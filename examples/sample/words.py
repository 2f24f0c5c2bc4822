"""The words that make_data.py deals out: places, people, goods and remarks.

Pure data. The order of every list counts: changing it changes data.sql.
"""

CURRENCIES = [
    # Kürzel, Bezeichnung, Zeichen, Kurs (units for one euro)
    ("EUR", "Euro", "€", "1.000000"),
    ("CHF", "Schweizer Franken", "Fr.", "0.962150"),
    ("PLN", "Złoty", "zł", "4.335000"),
    ("GBP", "Pfund Sterling", "£", "0.869250"),
    ("SEK", "Schwedische Krone", "kr", "11.096000"),
    ("DKK", "Dänische Krone", "kr", "7.452900"),
    ("NOK", "Norwegische Krone", "kr", "11.240500"),
    ("CZK", "Tschechische Krone", "Kč", "24.724000"),
    ("HUF", "Forint", "Ft", "382.800000"),
    ("RUB", "Russischer Rubel", "₽", "99.192000"),
    ("JPY", "Yen", "¥", "156.330000"),
    ("AED", "Dirham", "د.إ", "4.058000"),
    ("MAD", "Marokkanischer Dirham", None, "10.929000"),
    ("INR", "Indische Rupie", "₹", "91.904500"),
    ("LKR", "Sri-Lanka-Rupie", None, "358.100000"),
    ("TRY", "Türkische Lira", "₺", "32.653100"),
    ("ETB", "Birr", None, "62.310000"),
]

COUNTRIES = [
    # code, name, local name, currency, EU member, population, prefix
    ("DE", "Germany", "Deutschland", "EUR", True, 84358845, "+49"),
    ("AT", "Austria", "Österreich", "EUR", True, 9104772, "+43"),
    ("CH", "Switzerland", "Schweiz/Suisse/Svizzera", "CHF", False, 8815385, "+41"),
    ("FR", "France", "France", "EUR", True, 68172977, "+33"),
    ("PL", "Poland", "Polska", "PLN", True, 36753736, "+48"),
    ("GB", "United Kingdom", "United Kingdom", "GBP", False, 67736802, "+44"),
    ("IE", "Ireland", "Éire", "EUR", True, 5271395, "+353"),
    ("GR", "Greece", "Ελλάδα", "EUR", True, 10413982, "+30"),
    ("SE", "Sweden", "Sverige", "SEK", True, 10521556, "+46"),
    ("DK", "Denmark", "Danmark", "DKK", True, 5932654, "+45"),
    ("NO", "Norway", "Norge", "NOK", False, 5488984, "+47"),
    ("CZ", "Czechia", "Česko", "CZK", True, 10827529, "+420"),
    ("HU", "Hungary", "Magyarország", "HUF", True, 9599744, "+36"),
    ("RU", "Russia", "Россия", "RUB", False, 144444359, "+7"),
    ("JP", "Japan", "日本", "JPY", False, 124516650, "+81"),
    ("AE", "United Arab Emirates", "الإمارات العربية المتحدة", "AED", False, 9516871, "+971"),
    ("MA", "Morocco", "المغرب", "MAD", False, 37840044, "+212"),
    ("IN", "India", "भारत", "INR", False, 1428627663, "+91"),
    ("LK", "Sri Lanka", "ශ්‍රී ලංකාව", "LKR", False, 21893579, "+94"),
    ("TR", "Türkiye", "Türkiye", "TRY", False, 85816199, "+90"),
    ("ET", "Ethiopia", "ኢትዮጵያ", "ETB", False, 126527060, "+251"),
    ("ES", "Spain", "España", "EUR", True, 48085361, "+34"),
    ("AQ", "Antarctica", "Antarctica", "EUR", False, 4400, None),
]

CITIES = [
    # country, name, local name, population, latitude, longitude
    ("DE", "Hamburg", None, 1892122, 53.5511, 9.9937),
    ("DE", "Bremen", None, 569396, 53.0793, 8.8017),
    ("DE", "Cologne", "Köln", 1084831, 50.9375, 6.9603),
    ("DE", "Munich", "München", 1512491, 48.1372, 11.5756),
    ("DE", "Berlin", None, 3755251, 52.52, 13.405),
    ("DE", "Neustadt", None, None, None, None),
    ("DE", "Neustadt an der Aisch", None, 13354, 49.5775, 10.6106),
    ("DE", "Lübeck", None, 218095, 53.8655, 10.6866),
    ("AT", "Vienna", "Wien", 1982097, 48.2082, 16.3738),
    ("AT", "Neustadt", "Wiener Neustadt", 47707, 47.8151, 16.2465),
    ("CH", "Zurich", "Zürich", 427721, 47.3769, 8.5417),
    ("CH", "Geneva", "Genève", 203840, 46.2044, 6.1432),
    ("FR", "Paris", None, 2102650, 48.8566, 2.3522),
    ("FR", "Lyon", None, 522250, 45.764, 4.8357),
    ("FR", "Saint-Étienne", None, 173136, 45.4397, 4.3872),
    ("FR", "L'Haÿ-les-Roses", None, 31484, 48.7797, 2.3372),
    ("PL", "Warsaw", "Warszawa", 1861975, 52.2297, 21.0122),
    ("PL", "Łódź", None, 658444, 51.7592, 19.456),
    ("PL", "Kraków", None, 803283, 50.0647, 19.945),
    ("GB", "London", None, 8866180, 51.5074, -0.1278),
    ("GB", "King's Lynn", None, 47613, 52.7517, 0.4023),
    ("GB", "St. Andrews", None, 16870, 56.3398, -2.7967),
    ("IE", "Dublin", "Baile Átha Cliath", 592713, 53.3498, -6.2603),
    ("IE", "Cork", "Corcaigh", 224004, 51.8985, -8.4756),
    ("GR", "Athens", "Αθήνα", 643452, 37.9838, 23.7275),
    ("GR", "Thessaloniki", "Θεσσαλονίκη", 319045, 40.6401, 22.9444),
    ("SE", "Malmö", None, 357377, 55.605, 13.0038),
    ("DK", "Aarhus", "Århus", 290598, 56.1629, 10.2039),
    ("NO", "Tromsø", "Romsa", 77992, 69.6492, 18.9553),
    ("CZ", "Prague", "Praha", 1357326, 50.0755, 14.4378),
    ("HU", "Győr", None, 128808, 47.6875, 17.6504),
    ("RU", "Saint Petersburg", "Санкт-Петербург", 5600044, 59.9311, 30.3609),
    ("RU", "Kazan", "Казань", 1314685, 55.7963, 49.1088),
    ("JP", "Tokyo", "東京", 14094034, 35.6762, 139.6503),
    ("JP", "Kyoto", "京都", 1443486, 35.0116, 135.7681),
    ("JP", "Shizuoka", "静岡", 680000, 34.9756, 138.3828),
    ("AE", "Dubai", "دبي", 3655000, 25.2048, 55.2708),
    ("MA", "Casablanca", "الدار البيضاء", 3359818, 33.5731, -7.5898),
    ("MA", "Fès", "فاس", 1112072, 34.0331, -5.0003),
    ("IN", "Darjeeling", "दार्जिलिंग", 118805, 27.041, 88.2663),
    ("IN", "Kochi", "കൊച്ചി", 602046, 9.9312, 76.2673),
    ("LK", "Colombo", "කොළඹ", 752993, 6.9271, 79.8612),
    ("TR", "İzmir", None, 2948609, 38.4237, 27.1428),
    ("ET", "Jimma", "ጅማ", 239022, 7.6733, 36.8344),
    ("ES", "A Coruña", None, 247376, 43.3623, -8.4115),
]

# Which language people speak, by country; elsewhere English.
LANGUAGE_OF = {
    "DE": "de", "AT": "de", "CH": "fr", "FR": "fr", "PL": "pl", "GR": "el", "RU": "ru",
    "JP": "ja", "AE": "ar", "MA": "ar", "ES": "es",
}

STREETS = {
    "de": ["Hafenstraße", "Große Bleichen", "Am Wall", "Bäckergasse", "Speicherweg"],
    "fr": ["rue de l'Église", "avenue du Général-Leclerc", "quai d'Orléans", "place Bellecour"],
    "pl": ["ul. Świętokrzyska", "ul. Długa", "al. Niepodległości", "pl. Wolności"],
    "el": ["Οδός Ερμού", "Λεωφόρος Νίκης", "Οδός Αθηνάς"],
    "ru": ["Невский проспект", "улица Баумана", "Садовая улица"],
    "ja": ["本町", "河原町通", "中央通り"],
    "ar": ["شارع الشيخ زايد", "شارع محمد الخامس", "سوق العطارين"],
    "es": ["Calle de la Marina", "Avenida del Puerto", "Plaza de España"],
    "en": ["High Street", "Harbour Road", "St. John's Lane", "The \"Old\" Quay", "Mill Lane"],
}

FIRST_NAMES = {
    "de": ["Jürgen", "Anna", "Käthe", "Günther", "Sören", "Björn", "Lena", "Uwe"],
    "fr": ["Hélène", "François", "Zoé", "Jérôme", "Chloé", "Loïc", "Anaïs"],
    "pl": ["Łukasz", "Małgorzata", "Zbigniew", "Agnieszka", "Józef", "Żaneta"],
    "el": ["Γιώργος", "Ελένη", "Νίκος", "Σοφία", "Άννα"],
    "ru": ["Ольга", "Иван", "Наталья", "Фёдор", "Анна"],
    "ja": ["健太", "さくら", "美咲", "タケシ", "陽子"],
    "ar": ["محمد", "فاطمة", "خالد", "ليلى"],
    "es": ["Íñigo", "María José", "Nuño", "Begoña"],
    "en": ["Sinéad", "Patrick", "Zoë", "Anna", "Siobhán", "Owen", "Mary-Ann"],
}

LAST_NAMES = {
    "de": ["Müller", "Weiß", "von der Heide", "Größler", "Öztürk", "Jäger", "Schmidt", "Schmitt"],
    "fr": ["d'Arcy", "Lefèvre", "Bénard", "L'Hôpital", "Faÿ", "Garçon"],
    "pl": ["Wiśniewski", "Żółtowska", "Śliwa", "Łącki", "Nowak", "Kowalska-Wójcik"],
    "el": ["Παπαδόπουλος", "Αγγέλου", "Ξενάκης", "Ζαχαρίου"],
    "ru": ["Иванова", "Щербаков", "Королёв", "Мышкина"],
    "ja": ["田中", "鈴木", "渡辺", "髙橋"],
    "ar": ["الحداد", "بن علي", "المنصوري"],
    "es": ["Núñez", "Ibáñez y Ruiz", "O'Donnell", "García"],
    "en": ["O'Hara", "O'Neill", "Smith", "Smythe", "D'Souza", "St. Clair", "Åkesson", "Ó Briain"],
}

# Companies are "last name + kind"; these carry the language's way of saying it.
COMPANY_KINDS = {
    "de": ["Feinkost GmbH", "Kaffeerösterei", "& Söhne KG", "Teehaus"],
    "fr": ["& Fils", "Épicerie fine", "Maison de thé"],
    "pl": ["Sp. z o.o.", "Herbaciarnia", "i Wspólnicy"],
    "el": ["Α.Ε.", "Καφεκοπτείο"],
    "ru": ["Чайный дом", "и партнёры"],
    "ja": ["茶店", "株式会社"],
    "ar": ["للتجارة", "للعطارة والتوابل"],
    "es": ["e Hijos, S.L.", "Ultramarinos"],
    "en": ["& Sons", "Tea Rooms", "Trading Ltd", "Coffee Co."],
}

# Names that break programs which build SQL or patterns carelessly.
AWKWARD_COMPANIES = [
    "100% Natur GmbH", "under_score Ltd", "C:\\Kaffee\\neu", "The \"Corner\" Shop",
    "'t Koffiehuis", "O''Double & O'Single", "-- Strich & Strich", "/* Stern */ KG",
    "Tea; select 1", "a%b_c\\d", "🍓 Früchtchen", "MÜLLER Feinkost GmbH", "müller feinkost gmbh",
    "Müller, Weiß, \"Groß\"", "@1 and @p1", "<Berg> & [Tal]", ":Param1", "NULL", "0",
    "Line\nBreak Ltd",
]

CATEGORIES = [
    # name, tax percent, description, goods: (name, size, price in cents, grams)
    ("Tea", "7.00", "Leaf tea, loose and in tins; green, black, white, herbal.", [
        ("Darjeeling First Flush", "100 g", 1290, 120), ("Assam Broken", "250 g", 995, 270),
        ("Earl Grey", "100 g", 720, 120), ("Sencha 煎茶", "100 g", 1150, 120),
        ("Gyokuro 玉露", "50 g", 2480, 70), ("Matcha 抹茶", "30 g", 2790, 60),
        ("Ostfriesen-Mischung", "500 g", 1350, 520), ("Pfefferminze", "75 g", 390, 90),
        ("Thé à la menthe", "100 g", 640, 115), ("White Peony", "50 g", 1680, 65),
        ("Ceylon Orange Pekoe", "250 g", 880, 270), ("Rooibos \"Vanille\"", "100 g", 545, 115)]),
    ("Coffee", "7.00", "Green beans and roasts, single origin or blended.", [
        ("Sidamo", "250 g", 890, 260), ("Sidamo, ground", "250 g", 910, 260),
        ("Limu", "1 kg", 3190, 1020), ("Monsooned Malabar", "500 g", 1640, 515),
        ("Espresso N° 7", "1 kg", 2890, 1020), ("Café crème", "500 g", 1190, 515),
        ("Decaf (99,9 %)", "250 g", 790, 260), ("Türk kahvesi", "250 g", 680, 265),
        ("Rohkaffee Äthiopien", "5 kg", 6950, 5050), ("Kaffee-Probierpaket", None, 2450, 900)]),
    ("Spices", "7.00", "Whole and ground; also blends.\nSome are sold by the gram.", [
        ("Saffron", "1 g", 890, 8), ("Paprika édes", "100 g", 420, 110),
        ("Paprika csípős", "100 g", 420, 110), ("Ras el-Hanout رأس الحانوت", "80 g", 560, 95),
        ("Zimt, gemahlen", "50 g", 310, 60), ("Zimtstangen", "50 g", 370, 60),
        ("Kardamom", "50 g", 780, 60), ("Curry 50% mild", "100 g", 495, 110),
        ("Curry_hot", "100 g", 495, 110), ("Sumak", "80 g", 450, 95), ("七味唐辛子", "15 g", 520, 40),
        ("Μαστίχα Χίου", "20 g", 1890, 35), ("Хмели-сунели", "60 g", 340, 75)]),
    ("Oils and vinegars", "7.00", None, [
        ("Olive oil, extra virgin", "0.75 l", 1490, 1300),
        ("Ελαιόλαδο Καλαμάτα", "1 l", 1790, 1650), ("Kürbiskernöl", "0.25 l", 1180, 480),
        ("Leinöl", "0.25 l", 690, 480),
        ("Vinaigre de cidre", "0.5 l", 560, 830), ("Sherry vinegar", "0.25 l", 740, 470),
        ("Sesame oil 胡麻油", "0.2 l", 820, 390)]),
    ("Sweets", "7.00", "Chocolate, biscuits and candied fruit.", [
        ("Marzipanbrot", "125 g", 480, 140), ("Ingwer kandiert", "200 g", 590, 220),
        ("Chocolat noir 85%", "100 g", 340, 110), ("Pierniki toruńskie", "300 g", 720, 340),
        ("Λουκούμι", "250 g", 650, 290), ("Пастила", "200 g", 530, 230),
        ("Turrón de Jijona", "250 g", 990, 280), ("Fig jam \"Grandma's\"", "210 g", 460, 360),
        ("羊羹", "180 g", 1240, 210)]),
    ("Kitchenware", "19.00", "Pots, mills, scales, strainers; everything that brews.", [
        ("Kettle \"Möwe\"", "1.7 l", 6490, 1450), ("Coffee mill, hand", None, 8900, 980),
        ("Moka pot", "6 cups", 3290, 720), ("Tea strainer", None, 690, 45),
        ("Scale 0.1 g", None, 3950, 410), ("Mortar, granite", "Ø 13 cm", 2990, 3100),
        ("Spice rack", None, 4450, 1900), ("Filter No. 4", "100 pcs", 295, 160),
        ("Pepper mill, beech", "20 cm", 3490, 330), ("Gießkanne \"Öko\"", "3 l", 1950, 540)]),
    ("Ceramics", "19.00", "Hand-made; every piece differs.", [
        ("Teapot, blue", "0.8 l", 4890, 870), ("Teapot, blue, large", "1.4 l", 6290, 1240),
        ("Cup and saucer", None, 1490, 340), ("急須", "0.35 l", 7900, 390),
        ("茶碗", None, 5600, 310), ("Zuckerdose", None, 1890, 280),
        ("Butter dish \"Żuraw\"", None, 2690, 650), ("Blumentopf", "XXL", 3999, 4200)]),
    ("Books", "7.00", "On tea, coffee and spices, and cookery books.", [
        ("The Tea Almanac", "312 pp.", 2990, 780), ("Gewürze von A bis Z", "448 pp.", 3600, 1150),
        ("Le café, c'est tout", "196 pp.", 1990, 420), ("Чай: полный курс", "528 pp.", 2450, 900),
        ("お茶の本", "120 pp.", 1680, 210), ("Mocha & Motion", "88 pp.", 1299, 190)]),
    ("Gift boxes", "19.00", "Packed to order. 10% off for twelve and more.", [
        ("Box \"Guten Morgen\"", "S", 2490, 640), ("Box \"Five o'clock\"", "M", 3990, 1300),
        ("Box \"1001 نكهة\"", "M", 4490, 1250), ("Box 🎁", "L", 7990, 2700),
        ("Adventskalender", "24", 4950, 2100), ("Gift wrapping", None, 350, 30)]),
    ("Seasonal", "7.00", "Empty until the next season.", []),
]

RUSSIAN_GOODS = {
    "Earl Grey": "Чай с бергамотом", "Assam Broken": "Чай ассам", "Sidamo": "Кофе сидамо",
    "Saffron": "Шафран", "Kardamom": "Кардамон", "Teapot, blue": "Чайник синий",
    "Пастила": "Пастила", "Чай: полный курс": "Чай: полный курс", "Leinöl": "Льняное масло",
    "Moka pot": "Гейзерная кофеварка", "Хмели-сунели": "Хмели-сунели", "Zuckerdose": "Сахарница",
}

SHIPPERS = [
    # name, phone, cutoff time, express
    ("Möwe Kurier", "+49 40 5550101", "17:30:00", True),
    ("Nord-Süd Logistik", "+49 421 5550177", "15:00:00", False),
    ("Poczta Szybka", "+48 22 5550123", "14:15:00", False),
    ("Harbour & Rail Ltd", "+44 20 5550144", "16:00:00", False),
    ("さくら運輸", None, "12:00:00", True),
    ("Self-collection", None, None, False),
    ("Pigeon Post", "+33 1 5550190", "06:45:00", True),
]

EMPLOYEES = [
    # first name, last name, job title, number of the manager, city, hired, left
    ("Käthe", "Sörensen", "Managing Director", None, "Hamburg", "2009-04-01", None),
    ("Owen", "O'Hara", "Head of Sales", 1, "Hamburg", "2011-09-15", None),
    ("Uwe", "Weiß", "Head of Warehouse", 1, "Hamburg", "2010-01-04", None),
    ("Hélène", "d'Arcy", "Head of Purchasing", 1, "Lyon", "2014-06-01", None),
    ("Łukasz", "Żółtowski", "Sales Manager East", 2, "Warsaw", "2015-02-16", None),
    ("Jürgen", "Größler", "Sales Manager Central", 2, "Munich", "2013-11-01", "2023-06-30"),
    ("美咲", "渡辺", "Sales Manager Asia", 2, "Tokyo", "2018-04-02", None),
    ("Agnieszka", "Śliwa", "Sales Representative", 5, "Kraków", "2019-08-01", None),
    ("Фёдор", "Щербаков", "Sales Representative", 5, None, "2017-03-01", "2022-03-31"),
    ("Anna", "Berg", "Sales Representative", 6, "Munich", "2020-10-01", None),
    ("anna", "berg", "Sales Trainee", 6, "Berlin", "2023-02-01", None),
    ("Loïc", "L'Hôpital", "Sales Representative", 6, "Paris", "2016-05-17", None),
    ("Ελένη", "Ξενάκη", "Sales Representative", 2, "Athens", "2021-01-18", None),
    ("خالد", "المنصوري", "Sales Representative", 7, "Dubai", "2021-09-01", None),
    ("健太", "髙橋", "Sales Representative", 7, "Kyoto", "2022-04-01", None),
    ("Siobhán", "Ó Briain", "Sales Representative", 2, "Cork", "2012-02-29", None),
    ("Sören", "von der Heide", "Packer", 3, "Hamburg", "2012-07-02", None),
    ("Björn", "Öztürk", "Packer", 3, "Hamburg", "2018-12-03", None),
    ("Małgorzata", "Nowak", "Packer", 3, "Lübeck", "2020-03-16", "2024-02-29"),
    ("Íñigo", "Núñez", "Packer (part-time)", 3, "Bremen", "2021-11-02", None),
    ("Zoé", "Lefèvre", "Buyer", 4, "Geneva", "2019-01-07", None),
    ("Mary-Ann", "D'Souza", "Buyer", 4, "Kochi", "2020-02-10", None),
    ("Lena", "Müller", "Bookkeeper", 1, "Hamburg", "2013-03-01", None),
    ("Patrick", "St. Clair", "Auditor (external)", None, None, "2022-01-03", None),
]

REMARKS = [
    "Bitte vor 9 Uhr liefern; Hintereingang benutzen.", "Ring twice, the dog is harmless.",
    "Livraison à l'arrière du bâtiment, s'il vous plaît.", "Proszę dzwonić przed dostawą.",
    "Позвонить за час до доставки.", "Παράδοση μόνο πρωί.", "不在の場合は宅配ボックスへ。",
    "يرجى الاتصال قبل التسليم", "It's a gift: no invoice in the box, please!",
    "50% now, 50% later", "Ref. A_17\\b", "\"urgent\"", "Fragile 🫖 🫖", "-- no substitutes --",
    "'); drop table orders; --", "Packed in two boxes:\n1. tea\n2. pots", "n/a",
]

NOTES = [
    "Speaks German, English and a little Polish.", "Leitet die Schulungen für neue Kollegen.",
    "Prefers the morning shift; has the forklift licence (class 2).",
    "Spécialiste des thés verts, voyage deux fois par an au Japon.",
    "Asked for 80% from next summer, to be discussed.", "Zna się na kawie jak nikt inny.",
    "Path to the photo: \\\\server\\people\\new.", "Won the tasting contest twice ☕🏆.",
    "Отвечает за договоры с поставщиками.", "Remembers every customer's birthday, so it's said.",
]

RETURN_REASONS = ["broken", "wrong article", "Geschmack gefällt nicht", "arrived too late",
                  "cassé", "customer's mistake", "Farbe \"falsch\"", "100% mouldy"]
