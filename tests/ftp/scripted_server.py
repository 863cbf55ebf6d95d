#!/usr/bin/python3
"""An FTP server on loopback that does what no honest server does: scripted_server.py LOG [PORT]

Prints its port once it listens, and the address of its full port 21 if it can have one, and serves until it is
killed. The user name of a login says what happens in its session, in one or more of these words, separated by
blanks:

  refuse-CMD    CMD gets a refusal
  drop-CMD      the connection is closed in place of an answer to CMD
  cut-CMD       CMD's transfer ends half way: the data connection is closed and a failure reported
  break-CMD     CMD's transfer ends half way, and the control connection with it
  silent-CMD    CMD is never answered
  hold-CMD      CMD's transfer is answered when somebody logs in as "go-on"
  list-NAME     listings are those of NAME: "odd", "long", "endless", "alike", "plain"
  stay          a directory that has been entered is never left again

Every password is accepted. LOG gets the commands, a line each, passwords included.

The full port has room for one connection and has it. When somebody tries to connect, LOG gets "(somebody waits)".
The connection is accepted once LOG has been deleted, and what comes over it then is logged as "(heard: ...)".
"""
import os
import socket
import sys
import threading
import time

FILES = {b"good.htm": b"<HTML>good</HTML>\r\n", b"large.bin": b"0123456789abcdef" * 65536}
FOLDERS = {b"folder"}


def line(name, folder=False, size=5):
    return b"%s 1 ftp ftp %d Jan 01 2020 %s\r\n" % (b"drwxr-xr-x" if folder else b"-rw-r--r--", size, name)


def ordinary():
    yield from (line(name, True) for name in sorted(FOLDERS))
    yield from (line(name, size=len(data)) for name, data in sorted(FILES.items()))


def odd():
    for name in (b"..\\up.htm", b"/etc/passwd", b"C:\\boot.ini", b"CON", b"a\x01b\x7f.htm", b"%TEMP%.htm",
                 b"caf\xe9.htm"):
        yield line(name)
    yield b"what is this line\r\n"  # an empty one would end Wine's own wininet
    yield line(b".", True) + line(b"..", True) + line(b"last.htm")


def alike():
    yield from (line(name) for name in (b"caf\xe9.htm", "café.htm".encode(), "Małe.htm".encode()))


def plain():
    yield line(b"folder") + line(b"good.htm")


def long():
    yield line(b"a" * 10000 + b".htm")
    yield b"x" * 100000 + b"\r\n"
    yield line(b"b" * 200 + b".htm")


def endless():
    number, start = 0, time.monotonic()
    while time.monotonic() < start + 15:  # longer than anybody here waits
        number += 1
        yield b"".join(line(b"page%d.htm" % (number * 1000 + i)) for i in range(1000))


ANSWERS = {"USER": "331 password", "PASS": "230 in", "SYST": "215 UNIX Type: L8", "TYPE": "200 ok",
           "NOOP": "200 ok", "ALLO": "200 ok", "DELE": "250 ok", "RMD": "250 ok", "RNFR": "350 to what",
           "RNTO": "250 ok", "MKD": "257 made"}
LISTINGS = {"ordinary": ordinary, "odd": odd, "long": long, "endless": endless, "alike": alike, "plain": plain}
GO_ON = threading.Event()


def note(path, text):
    with open(path, "ab") as log:
        log.write(text + b"\n")


class Session(threading.Thread):
    def __init__(self, control, log):
        super().__init__(daemon=True)
        self.control, self.log = control, log
        self.words, self.directory, self.data_address = [], b"/", None

    def reply(self, text):
        self.control.sendall(text.encode("latin-1") + b"\r\n")

    def run(self):
        try:
            self.reply("220 ready")
            for raw in self.control.makefile("rb"):
                command, _, argument = raw.rstrip(b"\r\n").partition(b" ")
                note(self.log, raw.rstrip(b"\r\n"))
                if not self.serve(command.decode("latin-1").upper(), argument):
                    break
        except OSError:
            pass
        finally:
            self.control.close()

    def serve(self, command, argument):
        if command == "USER":
            self.words = argument.decode("latin-1").split()
            GO_ON.set() if self.words == ["go-on"] else GO_ON.clear()
        if f"silent-{command}" in self.words:
            threading.Event().wait()
        if f"drop-{command}" in self.words:
            return False
        if f"refuse-{command}" in self.words:
            self.reply("530 no" if command == "PASS" else "550 no")
            return True
        handler = getattr(self, "on_" + command, None)
        if handler:
            return handler(argument) is not False
        self.reply(ANSWERS.get(command, "502 unknown"))
        return True

    def on_QUIT(self, _):
        self.reply("221 bye")
        return False

    def on_PWD(self, _):
        self.reply('257 "%s"' % self.directory.decode("latin-1"))

    def on_CWD(self, argument):
        path = argument if argument.startswith(b"/") else self.directory + b"/" + argument
        parts = [part for part in path.split(b"/") if part]
        if parts[:1] and parts[0] not in FOLDERS or len(parts) > 1:
            self.reply("550 no such directory")
        elif not parts and self.directory != b"/" and "stay" in self.words:
            self.reply("550 no way back")
        else:
            self.directory = b"/" + b"/".join(parts)
            self.reply("250 ok")

    def on_PORT(self, argument):
        numbers = [int(n) for n in argument.split(b",")]
        self.data_address = ("127.0.0.1", numbers[4] * 256 + numbers[5])
        self.reply("200 ok")

    def open_data(self):
        self.reply("150 coming")
        return socket.create_connection(self.data_address)

    def is_whole(self, command):
        return f"cut-{command}" not in self.words and f"break-{command}" not in self.words

    def finish(self, command):
        if f"break-{command}" in self.words:
            return False
        if f"hold-{command}" in self.words:
            GO_ON.wait()
        self.reply("226 done" if self.is_whole(command) else "426 broken off")
        return True

    def send(self, command, chunks):
        with self.open_data() as data:
            for chunk in chunks:
                data.sendall(chunk if self.is_whole(command) else chunk[: len(chunk) // 2])
                if not self.is_whole(command):
                    break
        return self.finish(command)

    def on_LIST(self, _):
        names = [word[5:] for word in self.words if word.startswith("list-")] or ["ordinary"]
        return self.send("LIST", LISTINGS[names[0]]())

    def on_RETR(self, argument):
        name = argument.split(b"/")[-1]
        return self.send("RETR", [FILES.get(name, b"what the server calls " + name)])

    def on_STOR(self, _):
        with self.open_data() as data:
            if self.is_whole("STOR"):
                while data.recv(65536):
                    pass
            else:
                data.recv(1000)
        return self.finish("STOR")


def is_waited_for(address, port):
    number = socket.inet_aton(address)[::-1].hex().upper()
    with open("/proc/net/tcp") as connections:
        states = [connection.split()[2:4] for connection in connections]
    return ["%s:%04X" % (number, port), "02"] in states  # SYN_SENT


def full_server():
    for number in range(2, 10):  # another checkout's tests may be running
        try:
            return socket.create_server((f"127.0.1.{number}", 21), backlog=0)
        except OSError:
            pass
    return None


def serve_full(server, log):
    while True:
        first = socket.create_connection(server.getsockname())
        while not is_waited_for(*server.getsockname()):
            time.sleep(0.01)
        note(log, b"(somebody waits)")
        while os.path.exists(log):
            time.sleep(0.01)
        server.accept()[0].close()
        first.close()
        control, _ = server.accept()
        control.sendall(b"220 ready\r\n")
        try:
            heard = control.recv(100).rstrip(b"\r\n")
        except ConnectionResetError:
            heard = b""
        note(log, b"(heard: %s)" % heard)
        control.close()


def main():
    server = socket.create_server(("127.0.0.1", int(sys.argv[2]) if len(sys.argv) > 2 else 0))
    full = full_server()
    print(server.getsockname()[1], full.getsockname()[0] if full else "", flush=True)
    if full:
        threading.Thread(target=serve_full, args=(full, sys.argv[1]), daemon=True).start()
    while True:
        control, _ = server.accept()
        Session(control, sys.argv[1]).start()


main()
