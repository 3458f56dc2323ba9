#!/usr/bin/env python3
"""Writes rows for task.json to standard output: make_rows.py COUNT"""

import json
import random
import sys


def main():
    count = int(sys.argv[1])
    random.seed(20240501)
    names = ["anna.berg", "wang.xiaoming", "o.martin", "li.na", "j.fernandez"]
    words = ["新客户", "urgent", "退货", "paid", "华东", "follow up"]
    for number in range(count):
        row = {
            "sender": f"客户 {number % 977} < {random.choice(names)}{number}@example.org>",
            "amount": f"{random.randrange(1, 9_000_000) / 100:,.2f}",
            "tags": ";".join(random.sample(words, random.randrange(1, 5))),
            "number": number,
        }
        sys.stdout.write(json.dumps(row, ensure_ascii=False, separators=(",", ":")) + "\n")


main()
