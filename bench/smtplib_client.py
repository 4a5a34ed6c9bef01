"""Sends a mailing with Python's smtplib and EmailMessage, on one connection, to compare with.

    smtplib_client.py PORT COUNT TEXT [ATTACHMENT]

In TEXT, *NOME* becomes the recipient's name.
"""

import smtplib
import sys
from email import policy
from email.message import EmailMessage
from pathlib import Path


def letter_to(number, text, attachment):
    """The message to the recipient of that number."""
    message = EmailMessage(policy=policy.SMTP)
    message["From"] = "Bench <sender@bench.example>"
    message["To"] = f"recipient{number}@bench.example"
    message["Subject"] = "The letter of the bench"
    message["Date"] = "Sat, 21 Nov 2026 09:00:00 +0100"
    message["Message-ID"] = f"<{number}@bench.example>"
    message.set_content(text.replace("*NOME*", f"Recipient {number}"))
    if attachment:
        message.add_attachment(
            attachment, maintype="application", subtype="octet-stream", filename="attachment.bin"
        )
    return message


def main():
    """Sends them all."""
    port, count = int(sys.argv[1]), int(sys.argv[2])
    text = Path(sys.argv[3]).read_text(encoding="utf-8")
    attachment = Path(sys.argv[4]).read_bytes() if len(sys.argv) > 4 else None
    with smtplib.SMTP("127.0.0.1", port, local_hostname="bench.example") as client:
        for number in range(1, count + 1):
            client.send_message(letter_to(number, text, attachment))


if __name__ == "__main__":
    main()
