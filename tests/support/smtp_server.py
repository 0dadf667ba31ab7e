"""A mail server on loopback that keeps what it is sent.

    smtp_server.py FOLDER [--user NAME --password TEXT] [--silent | --hang-up]

Prints its port, then serves until standard input ends, so that it never outlives the
test that started it. Each mail becomes a folder FOLDER/1, FOLDER/2, ... with the files
raw, from, to, user, body, header.NAME for each header (decoded), and for attachments
attachment.N.name and attachment.N. The file "complete" comes last. A silent server never
says a word; one that hangs up does so in the middle, once it knows who sends.
"""
import argparse
import asyncio
import email
import email.policy
import logging
import pathlib
import random
import sys
import warnings

from aiosmtpd.smtp import SMTP, AuthResult


class Keeper:
    def __init__(self, folder, hangs_up):
        self.folder = folder
        self.hangs_up = hangs_up
        self.count = 0

    async def handle_RCPT(self, server, session, envelope, address, options):
        if self.hangs_up:
            server.transport.abort()
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        self.count += 1
        mail = self.folder / str(self.count)
        mail.mkdir()
        user = session.auth_data.login.decode() if session.authenticated else ""
        self.keep(mail, envelope, user)
        (mail / "complete").touch()
        return "250 OK"

    @staticmethod
    def keep(mail, envelope, user):
        (mail / "raw").write_bytes(envelope.original_content)
        (mail / "from").write_text(envelope.mail_from)
        (mail / "to").write_text("\n".join(envelope.rcpt_tos))
        (mail / "user").write_text(user)
        message = email.message_from_bytes(envelope.original_content, policy=email.policy.default)
        for name, value in message.items():
            (mail / f"header.{name}").write_text(str(value))
        body = message.get_body(("plain",))
        (mail / "body").write_text(body.get_content().replace("\r\n", "\n") if body else "")
        for number, part in enumerate(message.iter_attachments(), 1):
            (mail / f"attachment.{number}.name").write_text(part.get_filename() or "")
            (mail / f"attachment.{number}").write_bytes(part.get_payload(decode=True))


def account_settings(user, password):
    if user is None:
        return {}

    def check(server, session, envelope, mechanism, data):
        known = (user.encode(), password.encode())
        return AuthResult(success=(data.login, data.password) == known, handled=False, auth_data=data)

    return {"authenticator": check, "auth_required": True, "auth_require_tls": False}


async def listen(loop, protocol):
    # The setting that holds the port of the mail server is a 16-bit number with a sign.
    while True:
        try:
            return await loop.create_server(protocol, "127.0.0.1", random.randint(20000, 32000))
        except OSError:
            pass


async def serve(options):
    loop = asyncio.get_running_loop()
    settings = account_settings(options.user, options.password)
    keeper = Keeper(options.folder, options.hang_up)
    speaking = asyncio.Protocol if options.silent else lambda: SMTP(keeper, loop=loop, **settings)
    server = await listen(loop, speaking)
    print(server.sockets[0].getsockname()[1], flush=True)
    await loop.run_in_executor(None, sys.stdin.read)
    server.close()


def main():
    # It warns that passwords go over the wire unprotected, which is what is wanted here.
    warnings.simplefilter("ignore")
    logging.disable(logging.WARNING)
    arguments = argparse.ArgumentParser()
    arguments.add_argument("folder", type=pathlib.Path)
    arguments.add_argument("--user")
    arguments.add_argument("--password", default="")
    arguments.add_argument("--silent", action="store_true")
    arguments.add_argument("--hang-up", action="store_true")
    asyncio.run(serve(arguments.parse_args()))


main()
