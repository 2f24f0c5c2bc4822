#!/usr/bin/env python3
"""Writes data.sql, the rows of the sample database, beside this script.

The same bytes come out on every run and every Python 3: the dice below use nothing but
Random.random(), whose sequence for a given seed is guaranteed to stay.
"""

import pathlib
import random
import re
import sys
from collections import Counter
from datetime import date, datetime, time, timedelta
from decimal import Decimal

sys.dont_write_bytecode = True
import words

HERE = pathlib.Path(__file__).resolve().parent
SEED = 20240229
FIRST_DAY, LAST_DAY, LAST_SHIPPED_ORDER = date(2021, 1, 4), date(2024, 11, 29), date(2024, 11, 20)
ORDERS, CUSTOMERS, SUPPLIERS = 620, 170, 26
ROWS_PER_INSERT = 100


class Dice:
    def __init__(self, seed):
        self._random = random.Random(seed).random

    def below(self, n):
        return int(self._random() * n)

    def between(self, low, high):
        return low + self.below(high - low + 1)

    def chance(self, percent):
        return self._random() * 100 < percent

    def pick(self, items):
        return items[self.below(len(items))]

    def skewed(self, items):
        """Early items far more often than late ones."""
        return items[int(self._random() ** 2 * len(items))]

    def some(self, items, count):
        """count different items, in random order."""
        rest = list(items)
        return [rest.pop(self.below(len(rest))) for _ in range(min(count, len(rest)))]

    def maybe(self, percent, value):
        return value if self.chance(percent) else None


def money(cents):
    return Decimal(cents).scaleb(-2)


def kilograms(grams):
    return Decimal(grams).scaleb(-3)


def literal(value):
    if value is None:
        return "null"
    if isinstance(value, bool):
        return "'1'" if value else "'0'"
    if isinstance(value, (int, float)):
        return repr(value)
    if isinstance(value, Decimal):
        return format(value, "f")
    if isinstance(value, datetime):
        value = value.strftime("%Y-%m-%d %H:%M:%S")
    return "'" + str(value).replace("'", "''") + "'"


class Sample:
    """All rows, table by table, in the order of the schema."""

    def __init__(self, columns):
        self.columns = columns
        self.rows = {table: [] for table in columns}
        self.dice = Dice(SEED)
        self.city_numbers = {}  # name -> city_id; the first of equal names
        self.city_of = {}       # address_id -> city_id
        self.prices = {}        # product_id -> [(first day, cents)], oldest first
        self.grams = {}         # product_id -> weight
        self.orders_in = Counter()  # year -> number of orders

    def add(self, table, *values):
        assert len(values) == len(self.columns[table]), table
        self.rows[table].append(values)

    def column(self, table, name):
        at = self.columns[table].index(name)
        return [row[at] for row in self.rows[table]]

    # -- places and people ------------------------------------------------------------------

    def make_places(self):
        self.add("settings", "sample", "trading house", datetime(2024, 11, 30, 8, 0))
        self.add("settings", "company", "Sörensen & O'Hara Handelskontor",
                 datetime(2021, 1, 4, 9, 30))
        self.add("settings", "footer", "Tea, coffee & spices since 1904 ☕",
                 datetime(2023, 5, 2, 11, 15))
        self.add("settings", "tax rounding", None, datetime(2021, 1, 4, 9, 31))
        self.add("settings", "discount text", "", datetime(2022, 12, 31, 23, 59, 59))
        for code, label, sign, rate in words.CURRENCIES:
            self.add("Währungen", code, label, sign, Decimal(rate), date(2024, 3, 1))
        for country in words.COUNTRIES:
            self.add("countries", *country)
        for number, city in enumerate(words.CITIES, 1):
            self.add("cities", number, *city)
            self.city_numbers.setdefault(city[1], number)

    def make_address(self, city_id):
        dice, number = self.dice, len(self.rows["addresses"]) + 1
        country = words.CITIES[city_id - 1][0]
        language = words.LANGUAGE_OF.get(country, "en")
        house = f"{dice.between(1, 180)}{dice.pick(['', '', '', 'a', ' B', '/2'])}"
        self.add("addresses", number, city_id, dice.pick(words.STREETS[language]),
                 dice.maybe(94, house), dice.maybe(85, f"{dice.between(1000, 99999):05d}"),
                 dice.maybe(12, dice.pick(["c/o Müller", "2nd floor", "P.O. Box 7", "Hof links"])))
        self.city_of[number] = city_id
        return number

    def country_of(self, address):
        return words.CITIES[self.city_of[address] - 1][0] if address else None

    def any_address(self):
        return self.make_address(self.dice.skewed(range(1, len(words.CITIES) + 1)))

    def make_employees(self):
        dice = self.dice
        for number, employee in enumerate(words.EMPLOYEES, 1):
            first, last, job, boss, city, hired, left = employee
            address = self.make_address(self.city_numbers[city]) if city else None
            rank = 0 if boss is None else 1 if boss == 1 else 2
            born = date(dice.between(1961, 1999), dice.between(1, 12), dice.between(1, 28))
            notes = "\n".join(dice.some(words.NOTES, dice.between(1, 5)))
            self.add("employees", number, last, first, job, boss, address,
                     dice.maybe(90, born), date.fromisoformat(hired),
                     date.fromisoformat(left) if left else None,
                     dice.pick([time(6), time(8), time(8, 30), time(13, 45), None]),
                     money([820000, 540050, 310000][rank] + dice.below(60000)) if address else None,
                     "part-time" not in job and address is not None,
                     f"staff_{number:02d}@tea-and-more.example" if address else None,
                     dice.maybe(70, notes))
        sellers = [n for n, e in enumerate(words.EMPLOYEES, 1) if e[2].startswith("Sales")]
        for number in sellers:
            hired = date.fromisoformat(words.EMPLOYEES[number - 1][5])
            for country in dice.some(words.COUNTRIES[:-1], dice.between(1, 5)):
                self.add("sales_areas", number, country[0], hired + timedelta(dice.between(0, 600)))

    # -- goods ------------------------------------------------------------------------------

    def make_suppliers(self):
        dice = self.dice
        for number in range(1, SUPPLIERS + 1):
            address = self.make_address(dice.between(1, len(words.CITIES)))
            language = words.LANGUAGE_OF.get(self.country_of(address), "en")
            self.add("suppliers", number, self.company(language),
                     dice.maybe(80, self.person(language)), address,
                     dice.maybe(70, self.phone(address)),
                     dice.maybe(55, f"https://supplier{number}.example/?q=100%25&from=us"),
                     dice.maybe(75, dice.between(1, 5)), dice.pick([True, False, False, None]))

    def make_products(self):
        number = 0
        for category, (name, tax, description, goods) in enumerate(words.CATEGORIES, 1):
            self.add("categories", category, name, description, Decimal(tax))
            for good in goods:
                number += 1
                self.make_product(number, category, *good)

    def make_product(self, number, category, name, size, cents, grams):
        dice = self.dice
        self.grams[number] = grams
        introduced = date(2020, 1, 1) + timedelta(dice.pick([0, 0, 0, dice.below(1200)]))
        self.prices[number] = prices = [(introduced, cents * 88 // 100)]
        for year in range(introduced.year + 1, 2025):
            if dice.chance(65):
                raised = prices[-1][1] * dice.between(99, 109) // 100
                prices.append((date(year, dice.between(1, 10), 1), raised))
        text = f"{name}, {size}." if size else f"{name}."
        if dice.chance(45):
            text += " " + " ".join(dice.some(words.NOTES + words.REMARKS, dice.between(1, 9)))
        self.add("products", number, category, dice.maybe(88, dice.between(1, SUPPLIERS)), name,
                 words.RUSSIAN_GOODS.get(name), size, money(prices[-1][1]),
                 dice.maybe(90, money(cents * dice.between(35, 70) // 100)),
                 dice.maybe(95, kilograms(grams)),
                 dice.maybe(92, 4000000000000 + number * 7919003),
                 dice.pick([0, 0, dice.below(900), dice.below(60)]),
                 dice.chance(9), introduced, dice.maybe(85, text))
        for first_day, price in prices:
            self.add("price_history", number, first_day, money(price))

    def price_on(self, product, day):
        return [cents for first_day, cents in self.prices[product] if first_day <= day][-1]

    # -- customers --------------------------------------------------------------------------

    def person(self, language):
        first = self.dice.pick(words.FIRST_NAMES[language])
        last = self.dice.pick(words.LAST_NAMES[language])
        return f"{last}{first}" if language == "ja" else f"{first} {last}"

    def company(self, language):
        last = self.dice.pick(words.LAST_NAMES[language])
        return f"{last} {self.dice.pick(words.COMPANY_KINDS[language])}"

    def phone(self, address):
        country = self.country_of(address)
        prefix = next((c[6] for c in words.COUNTRIES if c[0] == country), None) or "+49"
        return f"{prefix} {self.dice.between(10, 99)} 555{self.dice.between(1000, 9999)}"

    def make_customers(self):
        dice, awkward = self.dice, list(words.AWKWARD_COMPANIES)
        sellers = sorted({row[0] for row in self.rows["sales_areas"]})
        for number in range(1, CUSTOMERS + 1):
            address = self.any_address() if number % 41 else None
            language = words.LANGUAGE_OF.get(self.country_of(address), "en")
            company = dice.chance(62) or number % 8 == 0
            contact = self.person(language)
            name = self.company(language) if company else contact
            if number % 8 == 0 and awkward:
                name = awkward.pop(0)
            remark = " ".join(dice.some(words.REMARKS + words.NOTES, dice.between(2, 14)))
            mailbox = f"customer{number}{dice.pick(['', '_x', '+tea'])}"
            self.add("customers", number, name, contact if company and dice.chance(80) else None,
                     company, language, address, dice.maybe(72, dice.pick(sellers)),
                     dice.maybe(88, f"{mailbox}@mail.example"), dice.maybe(64, self.phone(address)),
                     date(2008, 1, 1) + timedelta(dice.below(4700)),
                     dice.maybe(40, money(dice.between(5, 400) * 2500)),
                     dice.pick([True, False, None]), dice.maybe(30, remark))

    # -- orders -----------------------------------------------------------------------------

    def employees_on(self, day, job):
        return [n for n, e in enumerate(words.EMPLOYEES, 1) if job in e[2]
                and date.fromisoformat(e[5]) <= day
                and (e[6] is None or date.fromisoformat(e[6]) >= day)]

    def make_orders(self):
        dice = self.dice
        for shipper, (name, phone, cutoff, express) in enumerate(words.SHIPPERS, 1):
            self.add("shippers", shipper, name, phone, cutoff, express)
        addresses = self.column("customers", "address_id")
        buyers = [n for n in range(1, CUSTOMERS + 1) if addresses[n - 1] and n % 9]
        span = (LAST_DAY - FIRST_DAY).days
        days = sorted(FIRST_DAY + timedelta(dice.below(span + 1)) for _ in range(ORDERS))
        for order_id, day in enumerate(days, 1001):
            customer = dice.skewed(buyers)
            self.make_order(order_id, day, customer, addresses[customer - 1])

    def make_order(self, order_id, day, customer, bill):
        dice = self.dice
        ordered = datetime.combine(day, time(dice.between(7, 19), dice.below(60), dice.below(60)))
        cancelled = dice.chance(6)
        lines = self.choose_lines(day) if dice.chance(96) else []
        billed = bool(lines) and not cancelled
        freight = 0 if dice.chance(20) else dice.between(290, 4990)
        total = freight + sum(-(-q * cents * (100 - off) // 100) for _, _, q, cents, off in lines)
        payments = self.plan_payments(ordered, total) if billed else []
        paid = bool(payments) and sum(cents for _, cents in payments) == total
        self.add_order(order_id, customer, bill, ordered, freight, paid, cancelled, billed)
        for line_no, product, quantity, cents, off in lines:
            self.add("order_lines", order_id, line_no, product, quantity, money(cents),
                     money(off * 100), dice.maybe(6, dice.pick(words.REMARKS)))
        for paid_at, cents in payments:
            self.add_payment(order_id, paid_at, cents)
        if billed and (paid or dice.chance(55)) and day < LAST_SHIPPED_ORDER:
            self.make_shipments(order_id, ordered, lines)

    def add_order(self, order_id, customer, bill, ordered, freight, paid, cancelled, packed):
        dice, day = self.dice, ordered.date()
        self.orders_in[day.year] += 1
        ship = dice.pick([None, bill, bill])
        if dice.chance(20):
            ship = self.make_address(self.city_of[bill]) if dice.chance(70) else self.any_address()
        sold_by = dice.maybe(85, dice.pick(self.employees_on(day, "Sales")))
        packed_by = dice.maybe(90, dice.pick(self.employees_on(day, "Packer")))
        reference = [f"PO-{order_id}", f"Best.Nr. {order_id}/A", f"注文{order_id}"]
        self.add("orders", order_id, day.year, self.orders_in[day.year], customer, sold_by,
                 packed_by if packed else None, bill, ship,
                 next(c[3] for c in words.COUNTRIES if c[0] == self.country_of(bill)), ordered,
                 dice.maybe(55, day + timedelta(dice.between(2, 40))), money(freight), paid,
                 cancelled, dice.maybe(25, dice.pick(reference)),
                 dice.maybe(12, dice.pick(words.REMARKS)))

    def choose_lines(self, day):
        dice = self.dice
        # Every eleventh product is one that nobody ever wanted.
        offered = [p for p, prices in self.prices.items() if prices[0][0] <= day and p % 11]
        chosen = dice.some(offered, dice.pick([1, 1, 2, 2, 3, 4, 5, 8]))
        return [(line_no, product, dice.pick([1, 1, 2, 3, 6, 12, dice.between(1, 60)]),
                 self.price_on(product, day), dice.pick([0, 0, 0, 0, 5, 10, 15]))
                for line_no, product in enumerate(chosen, 1)]

    def plan_payments(self, ordered, total):
        """When and how much: nothing, all at once, or in parts (the last may be missing)."""
        dice = self.dice
        if dice.chance(17):
            return []
        parts = dice.pick([1, 1, 1, 1, 2, 3])
        plan, when = [], ordered
        for part in range(parts):
            when = datetime.combine(when.date() + timedelta(dice.between(0, 35)),
                                    time(dice.between(6, 22), dice.below(60), dice.below(60)))
            rest = total - sum(cents for _, cents in plan)
            plan.append((when, rest if part == parts - 1 else rest * dice.between(20, 60) // 100))
        return plan[:-1] if parts > 1 and dice.chance(20) else plan

    def add_payment(self, order_id, when, cents, method=None):
        dice = self.dice
        payment_id = 70000000000 + len(self.rows["payments"]) * 13
        method = method or dice.pick(["transfer", "transfer", "card", "cash", "direct debit"])
        word = dice.pick(["Rechnung", "Order", "Facture n°", "заказ"])
        self.add("payments", payment_id, order_id, when, money(cents), method,
                 dice.pick([True, True, True, True, False, None]),
                 dice.maybe(35, f"{word} {order_id}"))

    def make_shipments(self, order_id, ordered, lines):
        dice = self.dice
        # Now and then the last line waits for a second parcel, or stays behind.
        split = len(lines) > 1 and dice.chance(18)
        parcels = [lines[:-1], lines[-1:]] if split else [lines]
        if split and dice.chance(35):
            parcels.pop()
        day = ordered.date()
        for parcel in parcels:
            day += timedelta(dice.between(1, 9))
            arrived = day + timedelta(dice.between(1, 12))
            number = self.add_shipment(order_id, day, arrived, parcel)
            for line_no, _, quantity, _, _ in parcel:
                self.add("shipment_lines", number, order_id, line_no, quantity)
                if dice.chance(5):
                    self.make_return(order_id, line_no, quantity, arrived)

    def add_shipment(self, order_id, day, arrived, parcel):
        dice, number = self.dice, len(self.rows["shipments"]) + 1
        shipper = dice.skewed(range(1, len(words.SHIPPERS)))  # the last one never gets any
        shipped = datetime.combine(day, time(dice.between(6, 18), dice.below(60)))
        pickup = time(dice.between(8, 18), dice.pick([0, 15, 30, 45]))
        grams = sum(quantity * self.grams[product] for _, product, quantity, _, _ in parcel)
        # Tracking numbers from 2^53 + 1 on: they don't survive a floating point number.
        self.add("shipments", number, order_id, dice.maybe(96, shipper), shipped,
                 dice.maybe(45, pickup), dice.maybe(88, arrived),
                 dice.maybe(80, 9007199254740991 + number * 2),
                 dice.maybe(93, kilograms(grams)), dice.pick([True, False, False, None]))
        return number

    def make_return(self, order_id, line_no, quantity, arrived):
        dice, number = self.dice, len(self.rows["returns"]) + 1
        day = arrived + timedelta(dice.between(1, 30))
        refund = dice.maybe(70, dice.between(300, 9000))
        handled_by = dice.maybe(75, dice.pick(self.employees_on(day, "Packer")))
        self.add("returns", number, order_id, dice.maybe(88, line_no), day,
                 dice.between(1, quantity), dice.maybe(85, dice.pick(words.RETURN_REASONS)),
                 handled_by, money(refund) if refund else None)
        if refund:
            self.add_payment(order_id, datetime.combine(day, time(12)), -refund, "refund")

    def make_all(self):
        self.make_places()
        self.make_employees()
        self.make_suppliers()
        self.make_products()
        self.make_customers()
        self.make_orders()


def read_columns(schema):
    """Table -> column names, both in the order of the schema's text."""
    columns = {}
    for line in schema.splitlines():
        if head := re.match(r'create table "(.+?)"', line):
            columns[head[1]] = table = []
        elif column := re.match(r'    "(.+?)" ', line):
            table.append(column[1])
    return columns


def write_statements(sample):
    for table, rows in sample.rows.items():
        names = ", ".join(f'"{name}"' for name in sample.columns[table])
        for start in range(0, len(rows), ROWS_PER_INSERT):
            some = rows[start:start + ROWS_PER_INSERT]
            values = ",\n".join(f"({', '.join(map(literal, row))})" for row in some)
            yield f'insert into "{table}" ({names}) values\n{values};\n'


def main():
    sample = Sample(read_columns((HERE / "schema.sql").read_text(encoding="utf-8")))
    sample.make_all()
    text = "-- Made by make_data.py; change that and run it instead of editing here.\n"
    text += "".join(write_statements(sample))
    (HERE / "data.sql").write_text(text, encoding="utf-8", newline="\n")
    print(f"data.sql: {sum(map(len, sample.rows.values()))} rows, {len(text.encode())} bytes")


if __name__ == "__main__":
    main()
