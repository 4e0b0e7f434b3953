#!/usr/bin/env python3
"""Takes the mail of one tour: an SMTP server on a free port of the loopback interface.

    mail_sink.py FILE

Prints its port, then leaves each message as FILE, the newest in place of the one before. Ends when
its standard input does.
"""
import asyncio
import os
import sys

from aiosmtpd.controller import UnthreadedController


class Keeper:
    def __init__(self, path):
        self.path = path

    async def handle_DATA(self, server, session, envelope):
        part = self.path + ".part"
        with open(part, "wb") as file:
            file.write(envelope.content)
        os.replace(part, self.path)
        return "250 OK"


def main():
    loop = asyncio.new_event_loop()
    controller = UnthreadedController(Keeper(sys.argv[1]), hostname="127.0.0.1", port=0, loop=loop)
    controller.begin()
    print(controller.server.sockets[0].getsockname()[1], flush=True)
    loop.run_until_complete(loop.run_in_executor(None, sys.stdin.read))
    controller.end()


if __name__ == "__main__":
    main()
