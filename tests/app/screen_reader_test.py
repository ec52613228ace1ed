#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""screen_reader_test.py BREVILEXICON BRELEX_HELP: works with both programs as a screen reader does.

Everything goes over AT-SPI: it finds objects by role and name, reads them, acts on them and hears
of changes. Needs a display and a session bus."""
import os
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
                                'support'))
from at_spi import Atspi, PATIENCE_S, application_of, find, wait_for  # noqa: E402


def await_object(parent, role, name=None):
    return wait_for(lambda: find(parent, role, name), f'{role} "{name}"')


def start(program):
    process = subprocess.Popen([program], env={**os.environ, 'NO_AT_BRIDGE': '0'})
    return process, wait_for(lambda: application_of(process), program)


def expect(actual, expected, what):
    if actual != expected:
        sys.exit(f'{what}: "{actual}" instead of "{expected}"')


def text_of(obj):
    return Atspi.Text.get_text(obj, 0, Atspi.Text.get_character_count(obj))


def check_look_up(application):
    """The entry found is heard of while the box has the focus."""
    heard = []
    listener = Atspi.EventListener.new(
        lambda event: heard.append(event.source.get_description()))
    listener.register('object:property-change:accessible-description')
    box = await_object(application, 'text', 'First letters of the abbreviation')
    Atspi.EditableText.set_text_contents(box, 'CPU')
    wait_for(lambda: any(said and said.startswith('CPU: Central Processing Unit') for said in heard),
             f'the entry to be said, not {heard}')
    listener.deregister('object:property-change:accessible-description')


def check_tool_bar(application):
    """An icon opens its window, a dialog, whose links have their addresses."""
    await_object(application, 'tool bar', 'Toolbar')
    Atspi.Action.do_action(await_object(application, 'push button', 'About'), 0)
    about = await_object(application, 'dialog', 'About Brevilexicon')
    link = await_object(about, 'link')
    expect(Atspi.Action.get_n_actions(link), 1, 'the number of actions of the link')
    expect(link.get_hyperlink().get_uri(0), link.get_name(), 'the address of the link')
    Atspi.Action.do_action(await_object(about, 'push button', 'OK'), 0)
    wait_for(lambda: find(application, 'dialog', 'About Brevilexicon') is None, 'the dialog to close')


def check_search(application):
    """The number that changes with each hit keeps silent, so that the result is heard."""
    told = []
    listener = Atspi.EventListener.new(lambda event: told.append(event.source.get_role_name()))
    Atspi.Action.do_action(await_object(application, 'push button', 'Search Database'),
                           0)
    dialog = await_object(application, 'dialog', 'Search Database')
    text = await_object(dialog, 'text', 'Search text')
    Atspi.EditableText.set_text_contents(text, 'database')
    for event in ('object:text-changed', 'object:property-change:accessible-name'):
        listener.register(event)
    search = await_object(dialog, 'push button', 'Search')
    wait_for(lambda: search.get_state_set().contains(Atspi.StateType.SENSITIVE), 'the text to arrive')
    Atspi.Action.do_action(search, 0)
    result = await_object(dialog, 'text', 'Entries found')
    hits = wait_for(lambda: result.get_description().startswith('Number of Hits: ') and
                    result.get_description(), 'the number of hits')
    if int(hits.split()[-1]) < 100:
        sys.exit(f'there is too little to find: {hits}')
    if told.count('label') > 20:
        sys.exit(f'labels have told of {told.count("label")} changes: nobody can listen to that')
    for event in ('object:text-changed', 'object:property-change:accessible-name'):
        listener.deregister(event)
    Atspi.Action.do_action(await_object(dialog, 'push button', 'Cancel'), 0)


def check_donation(application):
    """The text that scrolls can be read line by line."""
    Atspi.Action.do_action(await_object(application, 'push button', 'Donate via PayPal'), 0)
    dialog = await_object(application, 'dialog')
    text = await_object(dialog, 'label')
    expect(text.get_description(), 'Behind the scenes', 'what the text is')
    lines = text_of(text).split('\n')
    second = Atspi.Text.get_string_at_offset(text, len(lines[0]) + 3, Atspi.TextGranularity.LINE)
    expect(second.content.rstrip('\n'), lines[1], 'the second line')
    Atspi.Action.do_action(await_object(dialog, 'push button', 'Cancel'), 0)


def check_help(application):
    """A page has its text, and its links and the contents lead to others."""
    page = await_object(application, 'document text', 'Welcome')
    if not text_of(page).startswith('Welcome'):
        sys.exit(f'the page begins with "{text_of(page)[:40]}"')
    link = await_object(page, 'link')
    Atspi.Action.do_action(link, 0)
    wait_for(lambda: find(application, 'document text', 'Welcome') is None, 'another page')
    tree = await_object(application, 'tree', 'Contents')
    item = wait_for(lambda: next((tree.get_child_at_index(i) for i in range(tree.get_child_count())
                                  if tree.get_child_at_index(i).get_name() == 'Keys'), None),
                    'the item "Keys"')
    Atspi.Action.do_action(item, 0)
    await_object(application, 'document text', 'Keys')


def main():
    program, viewer = sys.argv[1:]
    process, application = start(program)
    for check in (check_look_up, check_tool_bar, check_search, check_donation):
        check(application)
    Atspi.Action.do_action(await_object(application, 'push button', 'Exit'), 0)
    expect(process.wait(PATIENCE_S), 0, 'the status of the program')

    process, application = start(viewer)
    check_help(application)
    process.terminate()
    process.wait(PATIENCE_S)


main()
