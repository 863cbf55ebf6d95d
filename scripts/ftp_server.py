#!/usr/bin/python3
"""An FTP server on loopback that serves a folder: ftp_server.py FOLDER [PORT [ADDRESS]]

Prints its port once it listens and serves until it is killed. The one login is user / secret; the folder
"closed" can be seen but not entered.
"""
import logging
import os
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer


class Handler(FTPHandler):
    authorizer = DummyAuthorizer()
    banner = "ready."


def main():
    folder = os.path.abspath(sys.argv[1])
    port = int(sys.argv[2]) if len(sys.argv) > 2 else 0
    Handler.authorizer.add_user("user", "secret", folder, perm="elradfmwMT")
    closed = os.path.join(folder, "closed")
    if os.path.isdir(closed):
        Handler.authorizer.override_perm("user", closed, "lr")
    logging.basicConfig(level=logging.WARNING)
    address = sys.argv[3] if len(sys.argv) > 3 else "127.0.0.1"
    server = FTPServer((address, port), Handler)
    print(server.socket.getsockname()[1], flush=True)
    server.serve_forever()


main()
