PS1='device:\w \u\$ '
