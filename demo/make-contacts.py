#!/usr/bin/env python3
"""Writes the demo contacts: contacts.csv for the PC's phonebook and card.csv for a card, beside this script.

Everybody in them is made up. Numbers come from ranges that national authorities keep for fiction, addresses from
domains kept for examples. The seed is fixed: the files are the same on every run.
"""

import csv
import pathlib
import random

SEED = 20260214
CONTACTS = 1200
CARD_CONTACTS = 120

# People by region: first names, last names (each with the spelling used in addresses), the share of all contacts, the
# order of a full name, and which numbers they have.
REGIONS = {
    "english": (
        18,
        "first last",
        "gb us us gb",
        "Ada Grace Oliver Amelia Jack Isla Harry Freya Noah Ivy Theo Poppy Leo Willow Arthur Maeve Callum Siobhan Rhys "
        "Eleanor Marcus Priya Dev Imani Tobias Hazel Felix Nora Desmond Ruth".split(),
        "Byron Hopper Ashworth Blake Carver Dunmore Ellery Fairfax Greenwood Hartley Ingram Jessop Kingsley Langford "
        "Marlowe Northcott O'Brien Pemberton Quill Ravenscroft Stirling Thackeray Underhill Vane Whitlock Yardley "
        "MacAllister Featherstonehaugh".split(),
    ),
    "german": (
        14,
        "first last",
        "de",
        "Anna Jörg Käthe Jürgen Sören Friederike Björn Ännchen Matthias Lieselotte Götz Heike Rüdiger Sabine Uwe Bärbel "
        "Florian Mareike Thorsten Wiebke Günther Ines".split(),
        "Müller Weiß Schäfer Groß Böhm Krüger Häußler Öztürk Brandstätter Lindqvist Schönfeld Fuß Übelacker Steinmeier "
        "Köhler Jäger Zöllner Hübner Löwenstein Wagenknecht".split(),
    ),
    "french": (
        10,
        "first last",
        "fr",
        "Amélie François Chloé Jérôme Éloïse Benoît Zoé Gaël Hélène Loïc Noémie Théo Anaïs Cécile Rémi Solène".split(),
        "Lefèvre Bérenger Châtelain Dubois Garçon Hervé Île-Dieu Légaré Noël Pâquet Saint-Exupère Crèvecœur Bœuf "
        "Rivière Delaître".split(),
    ),
    "spanish": (
        8,
        "first last",
        "us",
        "José María Íñigo Sofía Ramón Lucía Andrés Núria Óscar Begoña Martín Inés Raúl Pilar".split(),
        "Núñez García-Márquez Peña Ibáñez Muñoz Fernández Castaño Güemes Ordóñez Zúñiga Coruña Vázquez".split(),
    ),
    "scandinavian": (
        6,
        "first last",
        "se",
        "Åsa Øyvind Håkon Märta Søren Linnéa Kåre Jørgen Björn Ingrid Tove Frøya".split(),
        "Ångström Sørensen Lindström Østergård Bjørnson Håkansson Sjöberg Nygård Bækgaard".split(),
    ),
    "icelandic": (
        2,
        "first last",
        "se",
        "Sigríður Björk Ægir Þórdís Ólafur Guðrún".split(),
        "Guðmundsdóttir Þórsson Jónsdóttir Sæmundsson".split(),
    ),
    "finnish": (
        2,
        "first last",
        "se",
        "Aino Väinö Päivi Jyrki Hyvärikki".split(),
        "Mäkelä Näkkäläjärvi Hämäläinen Yli-Ylönen".split(),
    ),
    "polish": (
        3,
        "first last",
        "gb de",
        "Łukasz Małgorzata Paweł Żaneta Michał Świętosława".split(),
        "Wójcik Brzęczyszczykiewicz Łęcki Kowalczyk Zieliński Gżegżółka".split(),
    ),
    "czech": (
        3,
        "first last",
        "gb de",
        "Žofie Štěpán Zdeněk Jiří Čeněk Kateřina Růžena".split(),
        "Příhoda Žižka Čapek Dvořák Řezníček Šťastný".split(),
    ),
    "hungarian": (
        2,
        "last first",
        "gb",
        "Eszter Győző Ágnes Örs Tünde".split(),
        "Kőszegi Szűcs Győrffy Nagy".split(),
    ),
    "southslavic": (
        2,
        "first last",
        "de",
        "Đorđe Željka Katarína Zlatan Ćiro".split(),
        "Kovačević Ðukić Šarić Žunić".split(),
    ),
    "turkish": (
        2,
        "first last",
        "de",
        "Ömer Gülşen İbrahim Şebnem Çağla".split(),
        "Yıldız Çelik Öztürk Güneş".split(),
    ),
    "romanian": (
        2,
        "first last",
        "fr",
        "Ștefan Ioana Țuțea Mădălina".split(),
        "Țepeș Șerban Brâncuși Bălan".split(),
    ),
    "russian": (
        6,
        "first last",
        "gb",
        [("Ольга", "olga"), ("Мария", "marija"), ("Наталья", "natalja"), ("Алёна", "aljona"), ("Вера", "vera")],
        [("Соколова", "sokolova"), ("Щербакова", "shcherbakova"), ("Кузнецова", "kuznecova"), ("Ёлкина", "jolkina"),
         ("Чайковская", "chajkovskaja"), ("Жуковская", "zhukovskaja")],
    ),
    "ukrainian": (
        2,
        "first last",
        "gb",
        [("Ярослав", "jaroslav"), ("Оксана", "oksana"), ("Їжак", "jizhak"), ("Євген", "yevhen")],
        [("Шевченко", "shevchenko"), ("Петренко", "petrenko"), ("Ґалаґан", "galagan")],
    ),
    "greek": (
        4,
        "first last",
        "gb",
        [("Ελένη", "eleni"), ("Γιώργος", "giorgos"), ("Αλέξης", "alexis"), ("Σοφία", "sofia"), ("Χρήστος", "christos"),
         ("Ιφιγένεια", "ifigeneia"), ("Θανάσης", "thanasis")],
        [("Παπαδοπούλου", "papadopoulou"), ("Οικονόμου", "oikonomou"), ("Καζαντζής", "kazantzis"),
         ("Βλάχος", "vlachos"), ("Μαυρίδης", "mavridis"), ("Ξενάκης", "xenakis")],
    ),
    "arabic": (
        5,
        "first last",
        "gb us",
        [("محمد", "mohammed"), ("فاطمة", "fatima"), ("يوسف", "youssef"), ("ليلى", "layla"), ("عمر", "omar"),
         ("نور", "nour"), ("خديجة", "khadija"), ("سامي", "sami")],
        [("الحسيني", "alhusseini"), ("بن علي", "benali"), ("المصري", "almasri"), ("حداد", "haddad"),
         ("القاسمي", "alqasimi"), ("منصور", "mansour")],
    ),
    "hebrew": (
        3,
        "first last",
        "us",
        [("דוד", "david"), ("שרה", "sara"), ("נועם", "noam"), ("תמר", "tamar"), ("אורי", "uri"), ("מיכל", "michal")],
        [("כהן", "cohen"), ("לוי", "levi"), ("מזרחי", "mizrahi"), ("ברק", "barak"), ("שפירא", "shapira")],
    ),
    "chinese": (
        5,
        "lastfirst",
        "us gb",
        [("小明", "xiaoming"), ("丽华", "lihua"), ("建国", "jianguo"), ("美玲", "meiling"), ("子涵", "zihan"),
         ("志強", "zhiqiang"), ("雅婷", "yating"), ("宇航", "yuhang")],
        [("王", "wang"), ("李", "li"), ("陳", "chen"), ("张", "zhang"), ("歐陽", "ouyang"), ("司马", "sima"),
         ("黃", "huang")],
    ),
    "japanese": (
        4,
        "last first",
        "us",
        [("さくら", "sakura"), ("健太", "kenta"), ("美咲", "misaki"), ("タケシ", "takeshi"), ("陽菜", "hina"),
         ("翔", "sho")],
        [("佐藤", "sato"), ("鈴木", "suzuki"), ("高橋", "takahashi"), ("渡邊", "watanabe"), ("小林", "kobayashi")],
    ),
    "korean": (
        3,
        "lastfirst",
        "us",
        [("민준", "minjun"), ("서연", "seoyeon"), ("지우", "jiwoo"), ("하은", "haeun"), ("도윤", "doyun")],
        [("김", "kim"), ("이", "lee"), ("박", "park"), ("최", "choi"), ("남궁", "namgung")],
    ),
    "devanagari": (
        3,
        "first last",
        "gb",
        [("आरव", "aarav"), ("प्रिया", "priya"), ("अर्जुन", "arjun"), ("सीता", "sita"), ("विवेक", "vivek")],
        [("शर्मा", "sharma"), ("पटेल", "patel"), ("वर्मा", "verma"), ("श्रीवास्तव", "shrivastava")],
    ),
    "thai": (
        2,
        "first last",
        "gb",
        [("สมชาย", "somchai"), ("สุดา", "suda"), ("กิตติ", "kitti"), ("มาลี", "mali")],
        [("ใจดี", "jaidee"), ("ศรีสุข", "srisuk"), ("ทองคำ", "thongkham")],
    ),
}

WITH_INITIALS = {"english", "german", "french", "spanish", "scandinavian", "polish", "turkish", "romanian"}

ORGANISATIONS = [
    "Akkordeonhaus Löwenzahn", "Boulangerie du Pont-Neuf", "City Library, Lending Desk", "Dr. med. dent. Ä. Wurzel",
    "Elektro Funke & Söhne", "Fahrradwerkstatt \"Die Speiche\"", "Garden Centre (open Sundays)", "Hotel Miramar",
    "Imkerei Süß; Honig & Met", "Kino Метро", "La Trattoria, da Peppe", "Optik Scharfblick", "Pharmacie de l'Étoile",
    "Rathaus - Bürgerbüro", "Smørrebrød & Sønner", "Taxi #1", "Τυπογραφείο Αθηνά", "Vet @ the Corner", "書店 三省",
    "Zahnrad- und Getriebefabrik Hohenwarth-Unterammergau GmbH & Co. KG, Abteilung Versand",
]

LONG_NAMES = [
    "Hubert Blaine Wolfeschlegelsteinhausenbergerdorff the Younger",
    "Prof. Dr. Dr. h. c. Anna-Katharina Freifrau von und zu Hohenstein-Waldburg-Schillingsfürst",
    "María de los Ángeles Fernández de Córdoba y Álvarez de las Asturias-Bohorques",
    "Ulla-Britt Gunhild Margareta Lagerlöf-Oxenstierna af Södermöre",
    "Παναγιώτα Αικατερίνη Παπαδιαμαντοπούλου-Καραθανασοπούλου",
    "Екатерина Владиславовна Преображенская-Воскресенская",
    "Nguyễn Thị Phương Thảo-Trần Lê Quỳnh Hương Giang",
]

GROUPS = [
    ("Family", 60), ("Friends", 90), ("Friends/Choir", 70), ("Friends/Choir/Altos", 18), ("Friends/Hiking", 35),
    ("Work", 120), ("Work/Berlin office", 45), ("Work/Suppliers", 40), ("Work/Night shift", 22), ("Neighbours", 55),
    ("School", 40), ("School/Parents", 16), ("Doctors", 14), ("Café Zoë", 25), ("Семья", 12), ("家人", 10),
    ("Travel", 30), ("Travel/Norway 2025", 12),
]

# Notes by region; "" is for everybody.
NOTES = {
    "": [
        "Met at the conference in Lyon",
        "Prefers messages to calls",
        "Birthday: 29 February",
        "Calls back, never answers",
        "Allergic to nuts!",
        "Key is with the neighbour",
        "Gate code: see the \"yellow\" envelope",
        "Left the company; new address follows",
        "Rings twice, then hangs up",
        "Chess on Thursdays",
        "Lent the tent (returned it, too)",
        "Delivers on Mondays; not in August",
        "100% reliable = worth the wait",
        "Opening hours:\nMon-Fri 9-18\nSat 10-14\n\nRing the bell at the back door.",
        "Agenda for the next call:\n- the invoice from March\n- \"Plan B\"\n- who brings the cake, and when",
        "Sings alto.\nPlays the viola da gamba.\n\nHas a key to the church; will bring the scores for the spring "
        "concert, the folding music stands and, if somebody thinks of it the day before, the urn for the tea. Do not "
        "call before ten.",
    ],
    "english": ["12 Harbour Lane\nExampleton EX4 3PL\nUnited Kingdom", "Works nights, call after two"],
    "german": ["Spricht Plattdeutsch", "Musterstraße 7\nHinterhaus, 3. Stock\n12345 Beispielstadt",
               "Schlüssel liegt beim Nachbarn", "Größe: M; Lieblingskuchen: Käse"],
    "french": ["Anniversaire le 14 juillet, penser aux fleurs", "24, rue de l'Exemple\n75099 Paris\nDigicode 12B45",
               "N'aime pas les « surprises »"],
    "spanish": ["¡Ojo! Cambia de número en mayo", "Calle del Ejemplo, 3, 2º B\n28099 Madrid"],
    "scandinavian": ["Låna stegen tillbaka", "Gården ligger bag kirken, første vej på højre hånd"],
    "russian": ["Перезвонить после шести", "Адрес: ул. Примерная, д. 5, кв. 17\nДомофон 17К"],
    "ukrainian": ["Зателефонувати у п'ятницю"],
    "greek": ["Μένει στον τρίτο όροφο,\nτο κουδούνι δεν δουλεύει"],
    "arabic": ["السطر الأول\nالسطر الثاني", "يفضل الرسائل"],
    "hebrew": ["לחזור אליו ביום ראשון"],
    "chinese": ["第一行\n第二行，有逗号\n第三行", "周五下午开会"],
    "japanese": ["誕生日は三月三日", "〒100-0099\n東京都見本区一丁目"],
    "korean": ["저녁에 전화하기"],
    "devanagari": ["शाम को फ़ोन करें"],
    "thai": ["โทรหลังหกโมงเย็น"],
}

PLAIN = str.maketrans({
    "ä": "ae", "ö": "oe", "ü": "ue", "ß": "ss", "Ä": "Ae", "Ö": "Oe", "Ü": "Ue", "é": "e", "è": "e", "ê": "e", "ë": "e",
    "á": "a", "à": "a", "â": "a", "ă": "a", "å": "a", "Å": "A", "í": "i", "î": "i", "ï": "i", "ı": "i", "İ": "I",
    "Í": "I", "Î": "I", "ó": "o", "ô": "o", "ő": "o", "ø": "o", "Ø": "O", "Ó": "O", "ú": "u", "ů": "u", "ű": "u",
    "û": "u", "ý": "y", "ñ": "n", "ň": "n", "ń": "n", "ç": "c", "Ç": "C", "č": "c", "Č": "C", "ć": "c", "ř": "r",
    "š": "s", "Š": "S", "ş": "s", "Ş": "S", "ș": "s", "Ș": "S", "ț": "t", "Ț": "T", "ž": "z", "Ž": "Z", "ż": "z", "Ż": "Z", "Ś": "S", "ś": "s", "ť": "t", "Ř": "R", "Ć": "C", "â": "a",
    "ź": "z", "ł": "l", "Ł": "L", "ę": "e", "ě": "e", "ą": "a", "đ": "dj", "Đ": "Dj", "ð": "d", "Ð": "D", "þ": "th",
    "Þ": "Th", "æ": "ae", "Æ": "Ae", "œ": "oe", "ğ": "g", "Á": "A", "É": "E", "'": "", "-": "", " ": "",
})


class Numbers:
    """Hands out numbers of the ranges kept for fiction, none of them twice."""

    def __init__(self, source):
        us_areas = (202, 206, 212, 303, 312, 404, 415, 503, 512, 602, 617, 702, 713, 808, 907)
        pools = {
            "gb": [f"+447700900{n:03d}" for n in range(1000)] + [f"+441632960{n:03d}" for n in range(1000)],
            "us": [f"+1{area}5550{n}" for area in us_areas for n in range(100, 200)],
            "de": [f"+493023125{n:03d}" for n in range(1000)] + [f"+4917139200{n:02d}" for n in range(100)],
            "fr": [f"+3363998{n:04d}" for n in range(1, 2000)] + [f"+3319900{n:04d}" for n in range(1, 500)],
            "se": [f"+467017406{n:02d}" for n in range(5, 100)] + [f"+468465004{n:02d}" for n in range(100)],
        }
        for pool in pools.values():
            source.shuffle(pool)
        self._pools = pools

    def take(self, country):
        pool = self._pools[country]
        return pool.pop() if pool else self.take("gb" if country != "gb" else "us")


def dressed(source, number):
    """A number as people write it, now and then."""
    style = source.random()
    if style < 0.55:
        return number
    if number.startswith("+1"):
        return f"+1 ({number[2:5]}) {number[5:8]}-{number[8:]}"
    head, tail = number[:3], number[3:]
    middle = "-" if style < 0.7 else " " if style < 0.9 else "/"
    return f"{head} {tail[:3]}{middle}{tail[3:]}"


def spelling(name):
    return name if isinstance(name, tuple) else (name, name.translate(PLAIN).lower())


def person(source, region):
    _, order, countries, firsts, lasts = REGIONS[region]
    (first, plain_first), (last, plain_last) = spelling(source.choice(firsts)), spelling(source.choice(lasts))
    if order == "first last":
        name = f"{first} {last}"
    else:
        name = f"{last}{' ' if order == 'last first' else ''}{first}"
    address = f"{plain_first}.{plain_last}".encode("ascii", "ignore").decode()
    return name, address, source.choice(countries.split())


def note(source, region):
    chance = source.random()
    if chance < 0.55:
        return ""
    return source.choice(NOTES[region] if chance < 0.75 and region in NOTES else NOTES[""])


def groups_for(source):
    if source.random() < 0.35:
        return ""
    names, weights = zip(*GROUPS)
    chosen = source.choices(names, weights, k=1 if source.random() < 0.8 else 2)
    return ";".join(dict.fromkeys(chosen))


def contact(source, numbers, region, name, address, country):
    row = {"Name": name, "Mobile": "", "officePhone": "", "homePhone": "", "email": "", "remark": note(source, region)}
    kinds = source.choices([["Mobile"], ["Mobile", "homePhone"], ["Mobile", "officePhone"], ["homePhone"],
                            ["officePhone"], ["Mobile", "officePhone", "homePhone"]], [50, 14, 16, 6, 5, 9])[0]
    for kind in kinds:
        row[kind] = dressed(source, numbers.take(country))
    if address and source.random() < 0.7:
        row["email"] = f"{address}@{source.choice(['example.com', 'example.org', 'mail.example.com'])}"
    row["Groups"] = groups_for(source)
    return row


def make_contacts(source):
    numbers = Numbers(source)
    rows = []
    for name in LONG_NAMES:
        rows.append(contact(source, numbers, "", name, "", "gb"))
    for name in ORGANISATIONS:
        row = contact(source, numbers, "", name, "", "de")
        row["officePhone"] = row["officePhone"] or numbers.take("de")
        rows.append(row)
    weights = [REGIONS[region][0] for region in REGIONS]
    used = {row["Name"] for row in rows}
    while len(rows) < CONTACTS:
        region = source.choices(list(REGIONS), weights)[0]
        name, address, country = person(source, region)
        # Namesakes get a middle initial where that is usual; some stay, as in life.
        if name in used and region in WITH_INITIALS and source.random() < 0.8:
            initial = source.choice("ABCDEFGHJKLMNPRSTVW")
            first, _, last = name.partition(" ")
            name = f"{first} {initial}. {last}"
            address = f"{initial.lower()}.{address}"
        elif name in used and source.random() < 0.95:
            continue
        used.add(name)
        rows.append(contact(source, numbers, region, name, address, country))
    source.shuffle(rows)
    rows.append({"Name": "112 Emergency", "Mobile": "112", "officePhone": "", "homePhone": "", "email": "",
                 "remark": "", "Groups": "Doctors"})
    rows.append({"Name": "Voicemail", "Mobile": "*86#", "officePhone": "", "homePhone": "", "email": "",
                 "remark": "Settings: *#62#", "Groups": ""})
    return rows


def make_card(source):
    """Names of at most 14 octets as a card counts them (the default alphabet, or a half-page form with 3 to spare)."""
    rows = [("Voicemail", "*86#"), ("Balance", "*100#"), ("Emergency", "112"), ("Taxi #1", "+493023125999")]
    plain = ["Ada", "Ben", "Cleo", "Dora", "Emil", "Finn", "Gil", "Hugo", "Ida", "Jörg", "Käthe", "Lou", "Max", "Nell",
             "Åsa", "Søren", "Zoé", "Ñico", "René", "Pia"]
    last = ["Berg", "Falk", "Weiß", "Kern", "Holm", "Roth", "Lenz", "Groß", "Voss", "Øst", "Ruiz", "Peña", "Stone"]
    short = ["Иван Лесной", "Ольга 2", "Мама", "Офис", "Αλέξης", "דוד כהן", "محمد علي", "王小明", "李丽华", "佐藤健太",
             "김민준", "สมชาย", "Žofie", "Łukasz", "Μαρία"]
    names = list(dict.fromkeys(short))
    while len(names) < CARD_CONTACTS - len(rows):
        name = f"{source.choice(plain)} {source.choice(last)}"
        if len(name) <= 14 and name not in names:
            names.append(name)
    source.shuffle(names)
    numbers = Numbers(source)
    return rows + [(name, numbers.take(source.choice(["gb", "de", "us", "fr"]))) for name in names]


def write(path, titles, rows):
    with open(path, "w", encoding="utf-8-sig", newline="") as file:
        writer = csv.writer(file, lineterminator="\r\n")
        writer.writerow(titles)
        writer.writerows(rows)


def main():
    folder = pathlib.Path(__file__).resolve().parent
    contacts = make_contacts(random.Random(SEED))
    titles = ["Name", "Mobile", "officePhone", "homePhone", "email", "remark", "Groups"]
    write(folder / "contacts.csv", titles, [[row[title] for title in titles] for row in contacts])
    write(folder / "card.csv", ["Name", "Number"], make_card(random.Random(SEED + 1)))


if __name__ == "__main__":
    main()
