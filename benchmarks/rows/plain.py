#!/usr/bin/env python3
"""The job of task.json as a plain script: JSON lines in, JSON lines out, all variables of a row."""

import json
import sys


ZEROS = "00000000"


def run(row):
    sender = row["sender"]
    start = sender.find("<")
    end = sender.find(">", start + 1)
    mail = sender[start + 1 : end] if start >= 0 and end >= 0 else ""
    at = mail.find("@")
    user = mail[:at] if at >= 0 else ""
    name = user.strip()
    key = name.upper()
    number = row["number"]
    digits = str(number)
    id_ = ZEROS[: 8 - len(digits)] + digits
    check = id_[::-1]
    amount = row["amount"].replace(",", "")
    price = float(amount)
    amount = f"{price:.2f}"
    words = row["tags"].split(";")
    tags = " | ".join(words)
    return {
        "amount": amount,
        "at": at,
        "check": check,
        "id": id_,
        "key": key,
        "mail": mail,
        "name": name,
        "number": number,
        "price": price,
        "result": key + tags,
        "sender": sender,
        "tags": tags,
        "user": user,
        "words": words,
        "zeros": ZEROS,
    }


def main():
    write = sys.stdout.write
    for line in sys.stdin:
        write(json.dumps(run(json.loads(line)), ensure_ascii=False, separators=(",", ":")) + "\n")


main()
