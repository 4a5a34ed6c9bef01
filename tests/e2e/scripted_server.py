"""A server that says what a test wrote down, whatever that leads to, and records what it hears."""

import socket
import threading


class ScriptedServer:
    """Runs within a `with`. It answers each command by its verb, in one write; anything it has no
    answer for is heard in silence.
    """

    def __init__(self, host, port, answers):
        self.address = f"{host}:{port}"
        self.answers = answers
        self.heard = b""
        self.connections = 0
        self._listening = socket.create_server((host, port))
        self._thread = threading.Thread(target=self._serve)

    def __enter__(self):
        self._thread.start()
        return self

    def __exit__(self, *_):
        # Whoever waits in accept() is woken.
        self._listening.shutdown(socket.SHUT_RDWR)
        self._thread.join()
        self._listening.close()

    def _serve(self):
        while True:
            try:
                connection, _ = self._listening.accept()
            except OSError:
                return
            self.connections += 1
            with connection:
                connection.settimeout(60)
                self._talk(connection)

    def _talk(self, connection):
        try:
            connection.sendall(b"220 scripted.example ready\r\n")
            while data := connection.recv(65536):
                self.heard += data
                verb = data.split(b" ")[0].strip().decode("latin-1").upper()
                connection.sendall(self.answers.get(verb, b""))
        except OSError:
            pass
