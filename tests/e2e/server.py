"""An SMTP server in this process: it records what it takes and fails where a test wants it to."""

import asyncio
import email
import logging
import ssl
import threading
from collections import Counter
from dataclasses import dataclass
from email import policy
from email.header import decode_header, make_header
from email.utils import parseaddr

from aiosmtpd.smtp import SMTP, AuthResult, TLSSetupException

# Where a server can fail: at its greeting, at a command, or at the reply to the content.
POINTS = ("greeting", "EHLO", "MAIL", "RCPT", "DATA", "content")

def is_news(record):
    """Whether something went wrong, and no client only left because of the certificate."""
    is_error = record.levelno >= logging.ERROR
    return is_error and not (record.exc_info and record.exc_info[0] is TLSSetupException)


logging.getLogger("mail.log").addFilter(is_news)


@dataclass
class Received:
    """A message as it came, with its envelope."""

    connection: int
    sender: str
    recipients: list
    content: bytes

    @property
    def message(self):
        """The message as Python's email package reads it."""
        return email.message_from_bytes(self.content, policy=policy.default)

    @property
    def sender_shown(self):
        """Name and address of From. Python 3.11 puts blanks between the encoded words of a long
        name, which its older functions do not.
        """
        line = email.message_from_bytes(self.content, policy=policy.compat32)["From"]
        name, address = parseaddr(line)
        return str(make_header(decode_header(name))), address


class Failure:
    """What a server does instead of its reply."""

    def __init__(self, reply=b"", closes=False, hangs=False):
        self.reply = reply
        self.closes = closes
        self.hangs = hangs


REFUSES = Failure(b"550 5.7.1 Not here\r\n")
REFUSES_FOR_NOW = Failure(b"451 4.3.0 Not now\r\n")
CLOSES = Failure(closes=True)
CLOSES_WITH_421 = Failure(b"421 4.3.2 Shutting down\r\n", closes=True)
TALKS_GARBAGE = Failure(b"\x00\xff what?\r\n")
NEVER_ENDS_ITS_LINE = Failure(b"250 " + b"x" * 1000000)
SAYS_NOTHING = Failure(hangs=True)


class Dialogue(SMTP):
    """One connection."""

    def __init__(self, server):
        super().__init__(
            server,
            data_size_limit=0,
            enable_SMTPUTF8=True,
            hostname="e2e.example",
            loop=server.loop,
            tls_context=server.encryption,
            auth_require_tls=not server.passwords,
            authenticator=server.login,
        )
        self.server = server
        self.number = 0
        # The commands below stand in for those of the base class.
        for verb in ("EHLO", "HELO", "MAIL", "RCPT", "DATA"):
            self._smtp_methods[verb] = self._failing(verb, self._smtp_methods[verb])

    def connection_made(self, transport):
        # Again when it is encrypted.
        self.number = self.number or self.server.count_connection()
        super().connection_made(transport)

    async def _handle_client(self):
        if not await self._fails("greeting"):
            await super()._handle_client()

    def _failing(self, verb, method):
        async def run(argument):
            if not await self._fails(verb):
                await method(argument)

        return run

    async def _fails(self, point):
        """Does what the test wants at this point; whether anything."""
        failure = self.server.failure_at(point)
        if failure is None:
            return False
        self.transport.write(failure.reply)
        if failure.hangs:
            await asyncio.Event().wait()
        if failure.closes:
            self.transport.close()
        return True

    async def content_fails(self):
        """The same for the reply to the content, as the text of the reply."""
        failure = self.server.failure_at("content")
        if failure is None:
            return None
        if failure.hangs:
            await asyncio.Event().wait()
        if failure.closes:
            self.transport.write(failure.reply)
            self.transport.close()
            return "250 nobody reads this"
        return failure.reply.removesuffix(b"\r\n").decode("latin-1")


class Server:
    """Runs in a thread of its own, within a `with`."""

    def __init__(self, extensions=(), passwords=None, certificate=None):
        """With passwords, by user, it takes messages only from who has logged in. With a
        certificate, the path of NAME.pem beside NAME.key, it offers STARTTLS.
        """
        self.extensions = list(extensions)
        self.passwords = passwords or {}
        self.logins = []
        self.encryption = None
        if certificate:
            self.encryption = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            self.encryption.load_cert_chain(certificate, certificate.with_suffix(".key"))
        self.received = []
        self.connections = 0
        self.commands = Counter()
        self.failures = {}
        self.refused_addresses = {}
        self.acceptance = "250 2.0.0 Taken as {}"
        self.on_command = lambda number: None
        self._count = 0
        self._dialogues = []

    def __enter__(self):
        self.loop = asyncio.new_event_loop()
        self._thread = threading.Thread(target=self.loop.run_forever)
        self._thread.start()
        listening = asyncio.run_coroutine_threadsafe(
            self.loop.create_server(self._dialogue, "127.0.0.1", 0), self.loop
        )
        self._listening = listening.result()
        self.port = self._listening.sockets[0].getsockname()[1]
        self.address = f"127.0.0.1:{self.port}"
        return self

    def __exit__(self, *_):
        asyncio.run_coroutine_threadsafe(self._end(), self.loop).result()
        self.loop.call_soon_threadsafe(self.loop.stop)
        self._thread.join()
        self.loop.close()

    async def _end(self):
        self._listening.close()
        others = [task for task in asyncio.all_tasks() if task is not asyncio.current_task()]
        for task in others:
            task.cancel()
        await asyncio.gather(*others, return_exceptions=True)
        for dialogue in self._dialogues:
            if dialogue.transport:
                dialogue.transport.abort()

    def _dialogue(self):
        self._dialogues.append(Dialogue(self))
        return self._dialogues[-1]

    def fail(self, point, failure, times=1, after=0):
        """Fails at a point a number of times, after it has not failed so often."""
        self.failures[point] = [None] * after + [failure] * times

    def restart_count(self):
        """Numbers the commands from 1 again."""
        self._count = 0

    # What the dialogues call.

    def count_connection(self):
        """The number of a new connection."""
        self.connections += 1
        return self.connections

    def failure_at(self, point):
        """What to do at this point this time; None for nothing."""
        self.commands[point] += 1
        self._count += 1
        self.on_command(self._count)
        planned = self.failures.get(point)
        return planned.pop(0) if planned else None

    async def handle_EHLO(self, dialogue, session, envelope, hostname, responses):
        """Offers the test's extensions besides."""
        session.host_name = hostname
        return responses[:-1] + [f"250-{name}" for name in self.extensions] + responses[-1:]

    def login(self, dialogue, session, envelope, mechanism, data):
        """Takes a login whose password is right."""
        user, password = data.login.decode(), data.password.decode()
        is_right = self.passwords.get(user) == password
        self.logins.append((user, is_right))
        return AuthResult(success=is_right, handled=False)

    async def handle_MAIL(self, dialogue, session, envelope, address, options):
        """Takes a sender, once it has logged in where that is wanted."""
        if self.passwords and not session.authenticated:
            return "530 5.7.0 Authentication required"
        envelope.mail_from = address
        envelope.mail_options.extend(options)
        return "250 2.1.0 OK"

    async def handle_RCPT(self, dialogue, session, envelope, address, options):
        """Takes an address unless the test has it refused."""
        if address in self.refused_addresses:
            return self.refused_addresses[address]
        envelope.rcpt_tos.append(address)
        return "250 2.1.5 OK"

    async def handle_DATA(self, dialogue, session, envelope):
        """Takes a message, or fails."""
        failure = await dialogue.content_fails()
        if failure:
            return failure
        self.received.append(
            Received(
                dialogue.number, envelope.mail_from, envelope.rcpt_tos, envelope.original_content
            )
        )
        return self.acceptance.format(len(self.received))

    def recipients(self):
        """Everybody who got a message, once for each."""
        return sorted(to for received in self.received for to in received.recipients)
