#!/usr/bin/env python3
"""Holds the formulas of physics.md, those of the manual's page and the constants of the code together.

Fails and says where, if a formula differs between the pages, if a constant of the code doesn't stand in
the table of coefficients with the same digits and with unit and effect, or if a formula has a number that
is neither a constant of the code nor a plain number of the formula.
Call: coefficients.py ROOT
"""
import html
import re
import sys
from decimal import Decimal
from pathlib import Path

CODE = ["engine/air.cpp", "engine/units.h", "engine/impact.cpp", "engine/flight_step.h", "engine/landing.cpp"]
BALLS = "shots/ball_kinds.h"
SECTIONS = ["Air", "Impact", "Flight", "Landing"]
# What belongs to a formula itself: powers, halves, steps of 100 Pa, Celsius from Fahrenheit.
PLAIN = {Decimal(n) for n in ("1", "2", "5", "8", "9", "10", "16", "100", "160", "1.5")}
NO_FORMULA = {"kRadiansPerTurnShown"}  # stands in the one of the roll with the same digits

CONSTANT = re.compile(r"constexpr\s+(?:float|double)\s+(k\w+)\s*=\s*(-?[\d.]+(?:e-?\d+)?)F?;")
BALL = re.compile(r"\{(-?[\d.]+)F, (-?[\d.]+)F, (\d)\}")
NUMBER = re.compile(r"(?<![\w.])\d+(?:\.\d+)?(?:e-?\d+)?")


def code_constants(root):
    """(file, name) -> value"""
    found = {}
    for file in CODE:
        for name, value in CONSTANT.findall((root / file).read_text(encoding="utf-8")):
            found[file, name] = Decimal(value)
    for slope, exponent, ball in BALL.findall((root / BALLS).read_text(encoding="utf-8")):
        for name, value in (("Slope1", Decimal(slope)), ("CD1", Decimal(exponent))):
            if value != 0:
                found[BALLS, f"Ball {ball} {name}"] = value
    return found


def plain_text(cell):
    """A formula of either page in one spelling: x_i for an index, x^n for a power, no blanks."""
    cell = re.sub(r"<sub>(.*?)</sub>", r"_\1", cell)
    cell = re.sub(r"<sup>(.*?)</sup>", r"^(\1)", cell)
    cell = html.unescape(re.sub(r"<[^>]+>", "", cell))
    for sign, index in zip("₀ₗₘₓₛᵥₕ", "0lmxsvh"):
        cell = cell.replace(sign, "_" + index)
    cell = re.sub("[⁰¹²³⁴⁵⁶⁷⁸⁹⁻]+", lambda power: "^(" + power[0].translate(
        str.maketrans("⁰¹²³⁴⁵⁶⁷⁸⁹⁻", "0123456789-")) + ")", cell)
    cell = re.sub(r"\^([\w.]+)", r"^(\1)", cell)
    cell = re.sub(r"(?<=\d),(?=\d{3})", "", cell.replace("−", "-").replace("′", "'"))
    cell = re.sub(r"(\d) · 10\^\((-\d+)\)", r"\1e\2", cell)
    return re.sub(r"\s+", "", cell)


def markdown_formulas(page):
    return {section: [row.split("|")[2].strip() for row in re.findall(
        r"^\|.*\|$", page.split(f"\n## {section}\n")[1].split("\n## ")[0], re.M)[2:]]
        for section in SECTIONS}


def manual_formulas(page):
    return {section: re.findall(
        r"<tr><td>.*?</td><td>(.*?)</td>",
        page.split(f"<h2>{section}</h2>")[1].split("<h2>")[0]) for section in SECTIONS}


def coefficient_rows(page):
    """(file, name) -> (value, unit, effect)"""
    rows, file = {}, None
    for row in re.findall(r"^\| (.*) \|$", page.split("\n## Coefficients\n")[1].split("\n## ")[0], re.M):
        cells = [cell.strip() for cell in row.split(" | ")]
        if head := re.fullmatch(r"\*\*`(.*?)`\*\*.*", cells[0]):
            file = head[1]
        elif "`" in cells[0]:
            rows[file, cells[0].replace("`", "")] = cells[1:4]
    return rows


def faults(root):
    constants = code_constants(root)
    physics = (root / "docs/physics.md").read_text(encoding="utf-8")
    manual = (root / "help/model.html").read_text(encoding="utf-8")

    rows = coefficient_rows(physics)
    for key in constants.keys() | rows.keys():
        where = " ".join(key)
        if key not in rows:
            yield f"physics.md has no row for {where}"
        elif key not in constants:
            yield f"the code has no {where}"
        elif Decimal(rows[key][0]) != constants[key]:
            yield f"{where} is {constants[key]} in the code, {rows[key][0]} in physics.md"
        elif not all(rows[key]):
            yield f"physics.md lacks unit or effect of {where}"

    told = set()
    ours, theirs = markdown_formulas(physics), manual_formulas(manual)
    for section in SECTIONS:
        one, other = ([plain_text(f) for f in page[section]] for page in (ours, theirs))
        if not one:
            yield f"{section} has no formulas"
        for formula in one + other:
            if (formula in one) != (formula in other):
                yield f"only in {'physics.md' if formula in one else 'model.html'}, {section}: {formula}"
        numbers = {Decimal(n) for formula in one + other for n in NUMBER.findall(formula)}
        told |= numbers
        known = PLAIN | {digits(key, value) for key, value in constants.items()}
        for number in numbers - known:
            yield f"{section} has {number}, which the code hasn't"
    for key, value in constants.items():
        if digits(key, value) not in told and key[1] not in NO_FORMULA:
            yield f"no formula has {' '.join(key)}, {value}"


def digits(key, value):
    """How a formula writes a constant: without its sign, and a 32-bit value in short."""
    return round(value, 3) if key[1] == "kBallGrams" else abs(value)


if __name__ == "__main__":
    found = list(faults(Path(sys.argv[1])))
    print("\n".join(found))
    sys.exit(bool(found))
